// Makes the objects of a document from its XML elements.
#pragma once

#include <functional>
#include <map>
#include <pugixml.hpp>
#include <string>
#include <vector>

#include "objc/Ownership.h"
#include "simulator/quartzcore/caml/Property.h"

namespace sim::caml {

class ObjectReader {
 public:
  // Images are in the folder, a path of the phone.
  explicit ObjectReader(std::string folder) : folder_(std::move(folder)) {}

  // All throw Error.
  objc::Strong<objc::Object> object(pugi::xml_node element);
  // Tells the states' elements the layers that they are about; after all objects are made.
  void connect();

 private:
  struct Reference {
    objc::Strong<objc::Object> source;
    std::string id;
    pugi::xml_node element;
  };

  objc::Strong<objc::Object> make(pugi::xml_node element, const std::string& className);
  void setAttributes(objc::Object object, pugi::xml_node element);
  void setChild(objc::Object object, pugi::xml_node element);
  void set(objc::Object object, const std::string& key, const Property& property,
           objc::Object value, pugi::xml_node place);
  objc::Object propertyValue(const Property& property, pugi::xml_node element);
  objc::Object objectList(pugi::xml_node element);
  objc::Object typedValue(pugi::xml_node element);
  objc::Object image(pugi::xml_node element);
  void registerId(objc::Object object, pugi::xml_node element);
  void connect(const Reference& reference);

  std::string folder_;
  std::map<std::string, objc::Strong<objc::Object>> layers_;  // of the tree, by their ids
  std::vector<Reference> references_;
  int objects_ = 0;
  int depth_ = 0;
  int statesAround_ = 0;  // what only a state adds is no part of the tree
};

}  // namespace sim::caml
