// The one place that sends messages.
//
//   send<double, "timeIntervalSinceDate:">(date, other)
//
// A nil receiver gives a value-initialised result, structures included: that is decided here
// because the platforms' entry points leave memory results of nil untouched.
#pragma once

#include <bit>
#include <cstddef>
#include <type_traits>
#include <utility>

#include "objc/Check.h"
#include "objc/ClassLookup.h"
#include "objc/Encoding.h"
#include "objc/Selector.h"

namespace objc {

template <class T>
class Strong;  // objc/Ownership.h

#if defined(__aarch64__) && !defined(__APPLE__)
// Compilers for phones take it that whoever passes a number of less than 32 bits has widened it;
// those for this system leave that to whoever reads it. Here one may call the other.
template <class T>
constexpr bool isNarrow() {
  if constexpr (std::is_integral_v<T> || std::is_enum_v<T>)
    return sizeof(T) < sizeof(int);
  else
    return false;
}
template <class T>
inline constexpr bool isWidened = isNarrow<T>();
#else
template <class T>
inline constexpr bool isWidened = false;
#endif

// What crosses the call: views travel as the pointer they are.
template <class T>
using Wire =
    std::conditional_t<std::is_base_of_v<Object, T>, id, std::conditional_t<isWidened<T>, int, T>>;

template <class T>
constexpr Wire<T> toWire(T value) {
  if constexpr (std::is_base_of_v<Object, T>)
    return value.get();
  else
    return static_cast<Wire<T>>(value);
}

template <class T>
constexpr T fromWire(Wire<T> value) {
  // Written as a BOOL by whoever does not widen, the rest of the register says nothing.
  if constexpr (std::is_same_v<T, bool> && isWidened<T>)
    return static_cast<unsigned char>(value) != 0;
  else
    return static_cast<T>(value);
}

// nil and literals of class type name no wire type of their own.
template <class T>
using Argument = std::conditional_t<std::is_same_v<T, std::nullptr_t>, id, T>;

// x86-64 returns structures of more than 16 bytes through a hidden pointer, and the runtime has
// entry points of its own for that. arm64 has one entry point for everything.
#if defined(__x86_64__)
template <class R>
constexpr bool isReturnedInMemory() {
  if constexpr (std::is_class_v<R>)
    return sizeof(R) > 16;
  else
    return false;
}
#else
template <class R>
constexpr bool isReturnedInMemory() {
  return false;
}
#endif

template <class R>
inline constexpr bool returnedInMemory = isReturnedInMemory<R>();

template <std::size_t Size>
struct Bytes {
  char bytes[Size];
};
static_assert(!returnedInMemory<void> && !returnedInMemory<id> && !returnedInMemory<double>);
static_assert(!returnedInMemory<Bytes<8>> && !returnedInMemory<Bytes<16>>);
#if defined(__x86_64__)
static_assert(returnedInMemory<Bytes<17>> && returnedInMemory<Bytes<48>>);
#else
static_assert(!returnedInMemory<Bytes<17>> && !returnedInMemory<Bytes<48>>);
#endif

template <class T>
inline constexpr bool crosses = std::is_void_v<T> || std::is_trivially_copyable_v<T>;

// What can be known to be wrong with a message before it is sent.
template <class R, FixedString Name, class... Args>
constexpr void requireSendable() {
  static_assert(argumentCount<Name> == sizeof...(Args),
                "the selector has another number of colons than the message has arguments");
  static_assert(!std::is_same_v<R, long double>, "long double results are not bridged");
  static_assert(crosses<R>,
                "owners do not cross the bridge: send<View>() and retain() or adopt() the result");
  static_assert((crosses<Args> && ...), "owners do not cross the bridge: pass get()");
}

template <class R, class... Args>
using Sender = Wire<R> (*)(id, SEL, Wire<Args>...);
template <class R, class... Args>
using SuperSender = Wire<R> (*)(objc_super*, SEL, Wire<Args>...);

template <class R, class... Args>
Sender<R, Args...> messageEntry() {
#if defined(__x86_64__)
  if constexpr (returnedInMemory<R>)
    return reinterpret_cast<Sender<R, Args...>>(&objc_msgSend_stret);
#endif
  return reinterpret_cast<Sender<R, Args...>>(&objc_msgSend);
}

template <class R, class... Args>
SuperSender<R, Args...> superEntry() {
#if defined(__x86_64__)
  if constexpr (returnedInMemory<R>)
    return reinterpret_cast<SuperSender<R, Args...>>(&objc_msgSendSuper2_stret);
#endif
  return reinterpret_cast<SuperSender<R, Args...>>(&objc_msgSendSuper2);
}

// How a value travels, whatever its name: every pointer as id does, every whole number of its width
// as long. Messages that differ in no more share their code.
template <class T>
struct Carrier {
  using type = T;
};
template <class T>
requires std::is_pointer_v<T>
struct Carrier<T> {
  using type = id;
};
template <class T>
requires((std::is_integral_v<T> || std::is_enum_v<T>)&&sizeof(T) ==
         sizeof(long)) struct Carrier<T> {
  using type = long;
};
template <class T>
using Carried = typename Carrier<Wire<T>>::type;

template <class T>
constexpr Carried<T> carry(T value) {
  return std::bit_cast<Carried<T>>(toWire<T>(value));
}

// The first message of its name.
template <class R, class... Args>
R sendFirst(id receiver, SelectorSlot& name, Args... args);

// The whole of a message but its arguments, which are where they belong already. Once for all
// messages with these types: within every sender it would be half of the extension.
template <class R, class... Args>
[[gnu::noinline]] R sendCarried(id receiver, SelectorSlot& name, Args... args) {
  if (receiver == nullptr) return R();
  const SEL known = name.known();
  // Nothing else is called here, so nothing has to be saved on the way.
  if (known == nullptr) return sendFirst<R, Args...>(receiver, name, args...);
  return messageEntry<R, Args...>()(receiver, known, args...);
}

template <class R, class... Args>
[[gnu::noinline]] R sendFirst(id receiver, SelectorSlot& name, Args... args) {
  name.lookUp();
  return sendCarried<R, Args...>(receiver, name, args...);
}

template <class R, FixedString Name, class... Args>
R send(id receiver, Args... args) {
  requireSendable<R, Name, Args...>();
  checkSend<R, Name, Argument<Args>...>(receiver);
  constexpr auto& carried = sendCarried<Carried<R>, Carried<Argument<Args>>...>;
  if constexpr (std::is_void_v<R>)
    carried(receiver, selectorSlot<Name>, carry<Argument<Args>>(args)...);
  else
    return fromWire<R>(std::bit_cast<Wire<R>>(
        carried(receiver, selectorSlot<Name>, carry<Argument<Args>>(args)...)));
}

template <class R, FixedString Name, class... Args>
R send(Object receiver, Args... args) {
  return send<R, Name>(receiver.get(), args...);
}

// The receiver may be a temporary owner, which lives until the message has been answered.
template <class R, FixedString Name, class... Args, class T>
R send(const Strong<T>& receiver, Args... args) {
  return send<R, Name>(receiver.get().get(), args...);
}

// A class method. A class that does not exist is nil.
template <class R, FixedString Name, class... Args>
R send(Class receiver, Args... args) {
  return send<R, Name>(reinterpret_cast<id>(receiver), args...);
}

// A message that ends in "..." on the platform, with one fixed argument. Apple's arm64 passes what
// follows the fixed arguments on the stack, so the call must go through a variadic prototype.
template <class R, FixedString Name, class Fixed, class... Rest>
R sendVariadic(Class receiver, Fixed fixed, Rest... rest) {
  requireSendable<R, Name, Fixed>();
  if (receiver == nullptr) return R();
  const SEL name = selector<Name>();
  id object = reinterpret_cast<id>(receiver);
  checkSend<R, Name, Argument<Fixed>>(object);
  auto entry = reinterpret_cast<Wire<R> (*)(id, SEL, Wire<Fixed>, ...)>(&objc_msgSend);
  return fromWire<R>(entry(object, name, toWire<Fixed>(fixed), toWire<Rest>(rest)...));
}

// Sends to the implementation above `implementing`, the class whose method is running.
template <class R, FixedString Name, class... Args>
R sendSuper(id receiver, Class implementing, Args... args) {
  requireSendable<R, Name, Args...>();
  if (receiver == nullptr) return R();
  const SEL name = selector<Name>();
  checkSuper<R, Name, Argument<Args>...>(implementing);
  objc_super super{receiver, implementing};
  auto entry = superEntry<R, Argument<Args>...>();
  if constexpr (std::is_void_v<R>)
    entry(&super, name, toWire<Argument<Args>>(args)...);
  else
    return fromWire<R>(entry(&super, name, toWire<Argument<Args>>(args)...));
}

// Whether the object answers a message of that name; NO for nil.
template <FixedString Name>
bool respondsTo(Object object) {
  return object && class_respondsToSelector(object_getClass(object.get()), selector<Name>());
}
template <FixedString Name, class T>
bool respondsTo(const Strong<T>& owner) {
  return respondsTo<Name>(owner.get());
}

}  // namespace objc
