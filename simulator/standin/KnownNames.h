// The names of classes and methods that mean something on a phone: of the system, those included
// that this phone was said to lack, and of the extensions that are loaded.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sim {

using Names = std::vector<std::string>;

// Registered now, or left out of this phone.
Names classNames();
bool isKnownClass(const std::string& name);
// "there is no class X; did you mean …", or which library would bring it.
std::string noSuchClass(const std::string& name);

// Of a class and its superclasses; of one that is left out, what it would have itself.
Names selectorNames(const std::string& cls, bool ofClass);
// Of all classes, instance and class methods.
Names selectorNames();

// Every text within the loaded extensions that can be a name: classes that they would register,
// selectors, keys. An extension that is switched off names what it would have used, too.
Names extensionNames();
bool isNamedByExtension(const std::string& name);

// Methods and properties of the stand-in of that name, those included that this phone lacks.
Names standInMembers(const std::string& cls);
Names standInClasses();

}  // namespace sim
