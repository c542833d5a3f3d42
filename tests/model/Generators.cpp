#include "tests/model/Generators.h"

#include <string>

namespace model {
namespace {

using rc::Gen;
namespace gen = rc::gen;

template <class T, class... Members>
Gen<Action> action(Gen<Members>... members) {
  return gen::map(gen::tuple(std::move(members)...), [](std::tuple<Members...> values) {
    return std::apply(
        [](auto&&... each) { return Action(T{std::forward<decltype(each)>(each)...}); },
        std::move(values));
  });
}

Gen<Action> starts() {
  // Large enough for centuries; the panel offers a day, and 99 songs.
  const auto durations = gen::weightedOneOf<long>(
      {{6, gen::inRange(1L, 90L)},
       {2, gen::element(0L, -1L, -60L, 1L)},
       {1, gen::element(86'399L, 4'000'000'000L, 1'000'000'000'000L, -1'000'000'000'000L)}});
  const auto counts = gen::weightedOneOf<long>(
      {{6, gen::inRange(1L, 5L)},
       {1, gen::element(0L, -1L, 99L, 1'000'000'000'000L, -1'000'000'000'000L)}});
  return gen::weightedOneOf<Action>({{4, action<Start>(gen::just(0L), durations)},
                                     {3, action<Start>(gen::just(1L), counts)},
                                     {1, action<Start>(gen::element(2L, -1L, 77L), counts)}});
}

Gen<Track> tracks() {
  const std::vector<std::optional<std::string>> titles = {
      "A", "B", "C", "B", "", std::nullopt, "\u0391 \"quoted\" \\ \U0001F319"};
  const std::vector<Nanoseconds> lengths = {30'000'000'000, 60'000'000'000, 5'500'000'000,
                                            200'000'000'000, 10'000'000'001};
  return gen::map(gen::pair(gen::elementOf(titles), gen::elementOf(lengths)), [](const auto& made) {
    return Track{made.first, made.second};
  });
}

Gen<std::vector<Track>> trackLists() {
  return gen::mapcat(gen::inRange<std::size_t>(1, 6), [](std::size_t count) {
    return gen::container<std::vector<Track>>(count, tracks());
  });
}

Gen<Action> advances() {
  const auto offsets = gen::element<Nanoseconds>(0, 0, -1, 1, -1'000'000, 1'000'000);
  const auto durations = gen::weightedOneOf<Nanoseconds>(
      {{3, gen::map(gen::inRange(0, 60),
                    [](int seconds) { return seconds * Nanoseconds(1'000'000'000); })},
       {1, gen::inRange<Nanoseconds>(0, 3'000'000'000)},
       {1, gen::just<Nanoseconds>(200'000'000'000)}});
  return gen::weightedOneOf<Action>(
      {{2, action<Advance>(durations)}, {3, action<AdvanceToDue>(gen::inRange(0, 4), offsets)}});
}

Gen<Action> setting(const char* key, Gen<std::optional<long>> values, bool isFlag) {
  return action<Set>(gen::just(std::string(key)), std::move(values), gen::just(isFlag));
}

Gen<Action> settings() {
  using Value = std::optional<long>;
  const auto flags = gen::element<Value>(0, 1, std::nullopt);
  // The last two are 1 and 0 for whoever takes 32 bits of them.
  const auto lengths = gen::element<Value>(1, 2, 0, -1, std::nullopt, 4'294'967'297, 4'294'967'296);
  const auto percents = gen::element<Value>(0, 50, 100, 150, -10, std::nullopt);
  return gen::oneOf(setting("volumeFadeOutEnabled", flags, true),
                    setting("letTheSongFinishEnabled", flags, true),
                    setting("letTheSongFinishEnabled", flags, true),
                    setting("onTimerStartsCustomVolume", flags, true),
                    setting("volumeFadeOutTime", lengths, false),
                    setting("onTimerStartsCustomVolumeValue", percents, false));
}

Gen<Action> restarts() {
  const auto away = gen::element(0, 0, 5, 30, 100);
  const auto wallMoves = gen::element(0, 0, 30, -30, 3600, -3600);
  return gen::oneOf(action<Respring>(away), action<Kill>(wallMoves, away));
}

Gen<Action> stored() {
  return gen::oneOf(
      action<StoredDate>(gen::element<std::optional<int>>(5, 0, -5, std::nullopt)),
      action<StoredTracks>(gen::element<std::optional<long>>(2, 0, -1, std::nullopt)));
}

Gen<Action> listening() {
  return gen::weightedOneOf<Action>(
      {{4, action<Next>()},
       {1, action<Previous>()},
       {1, action<Play>()},
       {1, action<Pause>()},
       {1, action<Seek>(gen::inRange(0, 70))},
       {1, action<Playlist>(trackLists())},
       {1, action<RepeatOne>(gen::arbitrary<bool>())},
       {2, action<Volume>(gen::element(0.5f, 0.0f, 0.1f, 0.25f, 0.3f, 0.55f, 1.0f))}});
}

Gen<Action> actions() {
  return gen::weightedOneOf<Action>(
      {{6, starts()},
       {8, advances()},
       {8, listening()},
       {1, action<Cancel>()},
       {2, action<Reinit>()},
       {2, action<Restart>()},
       {3, settings()},
       {1, action<WallClock>(gen::element(1, -1, 60, -60, 3600, -3600))},
       {2, restarts()},
       {1, stored()}});
}

Gen<std::vector<int>> deaths() {
  const auto counts = gen::weightedElement<std::size_t>({{14, 0}, {2, 1}, {1, 2}});
  return gen::mapcat(counts, [](std::size_t count) {
    return gen::container<std::vector<int>>(count, gen::inRange(0, 40));
  });
}

}  // namespace

Gen<Night> nights() {
  return gen::container<Night>(gen::map(gen::pair(actions(), deaths()), [](auto made) {
    return Command{std::move(made.first), std::move(made.second)};
  }));
}

}  // namespace model
