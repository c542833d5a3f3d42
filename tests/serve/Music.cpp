// The music of a folder, and its way to the page.
#include <gtest/gtest.h>
#include <linux/capability.h>
#include <sys/prctl.h>
#include <taglib/attachedpictureframe.h>
#include <taglib/fileref.h>
#include <taglib/flacfile.h>
#include <taglib/id3v2tag.h>
#include <taglib/mp4file.h>
#include <taglib/mpegfile.h>
#include <taglib/tag.h>
#include <unistd.h>

#include <algorithm>

#include "tests/serve/EventReader.h"
#include "tests/serve/MusicFiles.h"
#include "tests/serve/ServedProgram.h"

namespace sim {
namespace {

void tag(const std::string& file, const char* title, const char* artist) {
  TagLib::FileRef reference(file.c_str());
  ASSERT_FALSE(reference.isNull()) << file;
  reference.tag()->setTitle(TagLib::String(title, TagLib::String::UTF8));
  reference.tag()->setArtist(TagLib::String(artist, TagLib::String::UTF8));
  ASSERT_TRUE(reference.save()) << file;
}

TagLib::ByteVector picture() {
  return {png().data(), unsigned(png().size())};
}

void addCoverToMp3(const std::string& file) {
  TagLib::MPEG::File mpeg(file.c_str());
  auto* frame = new TagLib::ID3v2::AttachedPictureFrame;  // the tag deletes it
  frame->setMimeType("image/png");
  frame->setPicture(picture());
  mpeg.ID3v2Tag(true)->addFrame(frame);
  ASSERT_TRUE(mpeg.save());
}

void addCoverToFlac(const std::string& file) {
  TagLib::FLAC::File flacFile(file.c_str());
  auto* added = new TagLib::FLAC::Picture;  // the file deletes it
  added->setData(picture());
  flacFile.addPicture(added);
  ASSERT_TRUE(flacFile.save());
}

void addCoverToM4a(const std::string& file) {
  TagLib::MP4::File mp4(file.c_str());
  TagLib::MP4::CoverArtList list;
  list.append({TagLib::MP4::CoverArt::PNG, picture()});
  mp4.tag()->setItem("covr", list);
  ASSERT_TRUE(mp4.save());
}

json listed(const std::string& title, const char* artist, double length, bool cover,
            const std::string& id) {
  return {
      {"id", id},         {"title", title},   {"artist", artist == nullptr ? json() : json(artist)},
      {"album", nullptr}, {"length", length}, {"cover", cover}};
}

TEST(Music, OfEveryFormatIsRead) {
  const TestFolder folder;
  const std::string first = folder.write("a.mp3", mp3(10));
  tag(first, "Först", "Å \"B\"");
  addCoverToMp3(first);
  const std::string second = folder.write("b/c.FLAC", flac(20));
  tag(second, "Second", "Somebody");
  addCoverToFlac(second);
  tag(folder.write("b/d.ogg", oggVorbis(30)), "Third", "Somebody");
  const std::string fourth = folder.write("e.m4a", m4a(40));
  tag(fourth, "Fourth", "Somebody");
  addCoverToM4a(fourth);
  folder.write("plain name.wav", wave(50));
  const ServedProgram program({folder.path().string()});
  json music = program.get("/music").asJson();
  EXPECT_NEAR(music.at(0).at("length").get<double>(), 10, 0.1);
  music.at(0)["length"] = 10.0;
  EXPECT_EQ(music, (json{listed("Först", "Å \"B\"", 10, true, "1"),
                         listed("Second", "Somebody", 20, true, "2"),
                         listed("Third", "Somebody", 30, false, "3"),
                         listed("Fourth", "Somebody", 40, true, "4"),
                         listed("plain name", nullptr, 50, false, "5")}));
  EXPECT_EQ(program.errors(), "");
  for (const char* id : {"1", "2", "4"}) {
    const Answer cover = program.get(std::string("/cover/") + id);
    EXPECT_EQ(cover.body, png()) << id;
    EXPECT_EQ(cover.header("Content-Type"), "image/png");
  }
  EXPECT_EQ(program.get("/cover/3").status, 404);
  const char* const types[] = {"audio/mpeg", "audio/flac", "audio/ogg", "audio/mp4", "audio/wav"};
  for (int id = 1; id <= 5; ++id)
    EXPECT_EQ(program.get("/music/" + std::to_string(id)).header("Content-Type"), types[id - 1]);
}

TEST(Music, IsThePlaylistOfThePhone) {
  const TestFolder folder;
  tag(folder.write("1.ogg", oggVorbis(30)), "One", "Somebody");
  tag(folder.write("2.ogg", oggVorbis(40)), "Two", "Somebody");
  const ServedProgram program({folder.path().string()});
  EventReader page(program);
  json player = page.next("snapshot").data.at("player");
  EXPECT_EQ(player.at("title"), "One");
  EXPECT_EQ(player.at("artist"), "Somebody");
  EXPECT_EQ(player.at("length"), 30.0);
  EXPECT_EQ(player.at("file"), "1");
  EXPECT_EQ(player.at("playing"), true);
  program.command("advance 35s");
  player = page.next("player").data;
  EXPECT_EQ(player.at("file"), "2");
  EXPECT_EQ(player.at("position"), 5.0);
  EXPECT_EQ(player.at("at"), 35.0);
  program.command("playlist \"Three\" 10");
  EXPECT_TRUE(page.next("player").data.at("file").is_null());
}

// As the page asks for them when one of a large folder's songs is pressed.
TEST(Music, OfThousandsOfSongsIsPlayed) {
  const ServedProgram program({"--no-tweak"});
  std::string line = "playlist";
  for (int song = 0; song < 10'000; ++song)
    line += " \"Song number " + std::to_string(song) + " of a large folder\" 180 by \"Somebody\"";
  EXPECT_EQ(program.command(line).status, 200);
  EXPECT_EQ(program.command("expect-track \"Song number 0 of a large folder\"").status, 200);
}

TEST(Music, ThatCannotBeReadIsNamedAndLeftOut) {
  const TestFolder folder;
  const TestFolder elsewhere;
  const std::string outside = elsewhere.write("outside.wav", wave(1));
  folder.write("music/1 text.mp3", "no music at all");
  folder.write("music/2 empty.flac", "");
  folder.write("music/3 short.wav", wave(0));
  std::filesystem::create_symlink(outside, folder.path() / "music/4 link.wav");
  std::filesystem::create_symlink(folder.path() / "music", folder.path() / "music/circle");
  std::filesystem::create_symlink("nowhere", folder.path() / "music/dangling.wav");
  folder.write("music/5 good.wav", wave(1));
  folder.write("music/notes.txt", "");
  const ServedProgram program({(folder.path() / "music").string()});
  const json music = program.get("/music").asJson();
  ASSERT_EQ(music.size(), 1u);
  EXPECT_EQ(music.at(0).at("title"), "5 good");
  const std::string path = std::filesystem::canonical(folder.path() / "music").string();
  EXPECT_EQ(program.errors(), path + "/1 text.mp3: left out: it holds no sound\n" + path +
                                  "/2 empty.flac: left out: it cannot be read as music\n" + path +
                                  "/3 short.wav: left out: it holds no sound\n" + path +
                                  "/4 link.wav: left out: it lies outside the folder\n");
}

// Root may read everything, unless it gives that up for what it starts from here on.
void readWhatIsAllowedOnly() {
  if (geteuid() != 0) return;
  for (const int all : {CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH})
    ASSERT_EQ(prctl(PR_CAPBSET_DROP, all, 0, 0, 0), 0);
}

TEST(Music, ThatMayNotBeReadIsNamedAndLeftOut) {
  const TestFolder folder;
  const std::string forbidden = folder.write("1.wav", wave(1));
  std::filesystem::permissions(forbidden, std::filesystem::perms::none);
  folder.write("2.wav", wave(1));
  readWhatIsAllowedOnly();
  const ServedProgram program({folder.path().string()});
  EXPECT_EQ(program.get("/music").asJson().size(), 1u);
  EXPECT_EQ(program.errors(),
            std::filesystem::canonical(forbidden).string() + ": left out: Permission denied\n");
}

// What the program says when it does not serve.
std::string refusal(const std::vector<std::string>& words) {
  try {
    const ServedProgram program(words);
  } catch (const std::runtime_error& error) {
    return error.what();
  }
  return "it serves";
}

TEST(Music, NeedsAFolderThatIsThere) {
  const TestFolder folder;
  const std::string file = folder.write("a.wav", wave(1));
  EXPECT_EQ(refusal({file}), "it ended with 1: dozewell-simulator: " + file +
                                 ": expected a folder of music, found a file\n");
  const std::string missing = refusal({"/no/such/folder"});
  EXPECT_EQ(missing.rfind("it ended with 1: ", 0), 0u) << missing;
  EXPECT_NE(missing.find("/no/such/folder"), std::string::npos) << missing;
  for (const auto& words : {std::vector<std::string>{"a", "b"}, {"a", "--no-music"}})
    EXPECT_EQ(refusal(words).rfind("it ended with 2: ", 0), 0u) << words.back();
}

TEST(Music, IsThereOrElseThePhoneDoesNotStart) {
  const TestFolder folder;
  const std::string path = std::filesystem::canonical(folder.path()).string();
  const std::string reason =
      "dozewell-simulator: " + path +
      ": no music to play: expected files named .flac, .m4a, .mp3, .oga, .ogg, .opus or .wav "
      "there or in folders within\n";
  EXPECT_EQ(refusal({path}), "it ended with 1: " + reason);
  folder.write("notes.txt", "");
  folder.write("empty.ogg", "");
  EXPECT_EQ(refusal({path}), "it ended with 1: " + path +
                                 "/empty.ogg: left out: it cannot be read as music\n" + reason);
}

TEST(Music, IsSentInRanges) {
  const TestFolder folder;
  const std::string bytes = wave(1);
  folder.write("a.wav", bytes);
  const ServedProgram program({folder.path().string()});
  const Answer whole = program.get("/music/1");
  EXPECT_EQ(whole.status, 200);
  EXPECT_EQ(whole.body, bytes);
  EXPECT_EQ(whole.header("Accept-Ranges"), "bytes");
  const Answer part = program.get("/music/1", {{"Range", "bytes=8-11"}});
  EXPECT_EQ(part.status, 206);
  EXPECT_EQ(part.body, "WAVE");
  EXPECT_EQ(part.header("Content-Range"), "bytes 8-11/" + std::to_string(bytes.size()));
  const Answer rest = program.get("/music/1", {{"Range", "bytes=100-"}});
  EXPECT_EQ(rest.body, bytes.substr(100));
  EXPECT_EQ(program.get("/music/1", {{"Range", "bytes=100-99999999"}}).body, bytes.substr(100));
  EXPECT_EQ(program.get("/music/1", {{"Range", "bytes=-5"}}).body, bytes.substr(bytes.size() - 5));
  EXPECT_EQ(program.get("/music/1", {{"Range", "bytes=-99999999"}}).body, bytes);
  EXPECT_EQ(program.get("/music/1", {{"Range", "bytes=0-1,4-5"}}).body, bytes);
  EXPECT_EQ(program.get("/music/1", {{"Range", "bytes=0-1"}, {"If-Range", "\"old\""}}).body, bytes);
  const Answer beyond = program.get("/music/1", {{"Range", "bytes=99999999-"}});
  EXPECT_EQ(beyond.status, 416);
  EXPECT_EQ(beyond.error(), "expected a range of the file's 16044 bytes");
}

TEST(Music, IsNotSentAgainToThoseWhoHaveIt) {
  const TestFolder folder;
  folder.write("a.wav", wave(1));
  const ServedProgram program({folder.path().string()});
  const std::string known = program.get("/music/1").header("ETag");
  const Answer again = program.get("/music/1", {{"If-None-Match", known}});
  EXPECT_EQ(again.status, 304);
  EXPECT_EQ(again.body, "");
}

TEST(Music, OfItsOwnIsThereWithoutAFolder) {
  const ServedProgram program({"--no-tweak"});
  const json music = program.get("/music").asJson();
  ASSERT_EQ(music.size(), 3u);
  for (const json& piece : music) {
    EXPECT_EQ(piece.at("artist"), "Corvane");
    EXPECT_GE(piece.at("length"), 30.0);
    EXPECT_LE(piece.at("length"), 60.0);
  }
}

// Two bytes a sample, low byte first, after the format's 112 bytes of header and titles.
std::vector<int> samplesOf(const std::string& file) {
  std::vector<int> samples;
  for (auto at = file.find("data") + 8; at + 1 < file.size(); at += 2)
    samples.push_back(std::int16_t(static_cast<unsigned char>(file[at]) |
                                   static_cast<unsigned char>(file[at + 1]) << 8));
  return samples;
}

TEST(Music, OfItsOwnIsGentle) {
  const ServedProgram program({"--no-tweak"});
  for (const char* id : {"1", "2", "3"}) {
    const auto samples = samplesOf(program.get(std::string("/music/") + id).body);
    ASSERT_GT(samples.size(), 1'000'000u);
    int loudest = 0, widest = 0;
    for (std::size_t at = 2; at < samples.size(); ++at) {
      loudest = std::max(loudest, std::abs(samples[at]));
      // Of one channel: a click is a jump.
      widest = std::max(widest, std::abs(samples[at] - samples[at - 2]));
    }
    EXPECT_GT(loudest, 8'000) << id;
    EXPECT_LT(loudest, 20'000) << id;
    EXPECT_LT(widest, 6'000) << id;
    EXPECT_LT(std::abs(samples[0]) + std::abs(samples.back()), 50) << id;
  }
}

}  // namespace
}  // namespace sim
