// The pictures that files of the different formats carry.
#include <taglib/attachedpictureframe.h>
#include <taglib/fileref.h>
#include <taglib/flacfile.h>
#include <taglib/id3v2tag.h>
#include <taglib/mp4file.h>
#include <taglib/mpegfile.h>
#include <taglib/wavfile.h>
#include <taglib/xiphcomment.h>

#include <string_view>

#include "simulator/serve/music/MusicFile.h"

namespace sim {
namespace {

using TagLib::ByteVector;

constexpr std::size_t largest = std::size_t(16) * 1024 * 1024;

// By the bytes themselves: what a tag says of them may be anything.
std::string mimeTypeOf(std::string_view bytes) {
  using namespace std::string_view_literals;
  if (bytes.starts_with("\x89PNG\r\n"sv)) return "image/png";
  if (bytes.starts_with("\xFF\xD8\xFF"sv)) return "image/jpeg";
  if (bytes.starts_with("GIF8"sv)) return "image/gif";
  if (bytes.starts_with("RIFF"sv) && bytes.substr(0, 12).ends_with("WEBP"sv)) return "image/webp";
  return {};
}

std::optional<Cover> coverFrom(const ByteVector& data) {
  const std::string_view bytes(data.data(), data.size());
  std::string mimeType = mimeTypeOf(bytes);
  if (mimeType.empty() || bytes.size() > largest) return std::nullopt;
  return Cover{std::move(mimeType), std::string(bytes)};
}

std::optional<Cover> coverFrom(const TagLib::ID3v2::Tag* tag) {
  if (tag == nullptr) return std::nullopt;
  for (const TagLib::ID3v2::Frame* frame : tag->frameList("APIC")) {
    const auto* picture = dynamic_cast<const TagLib::ID3v2::AttachedPictureFrame*>(frame);
    if (picture == nullptr) continue;
    if (auto cover = coverFrom(picture->picture())) return cover;
  }
  return std::nullopt;
}

std::optional<Cover> coverFrom(const TagLib::List<TagLib::FLAC::Picture*>& pictures) {
  for (const TagLib::FLAC::Picture* picture : pictures) {
    if (auto cover = coverFrom(picture->data())) return cover;
  }
  return std::nullopt;
}

std::optional<Cover> coverFrom(const TagLib::MP4::Tag* tag) {
  if (tag == nullptr || !tag->contains("covr")) return std::nullopt;
  for (const TagLib::MP4::CoverArt& art : tag->item("covr").toCoverArtList()) {
    if (auto cover = coverFrom(art.data())) return cover;
  }
  return std::nullopt;
}

}  // namespace

std::optional<Cover> readCover(const std::filesystem::path& path) {
  const TagLib::FileRef reference(path.c_str());
  TagLib::File* file = reference.file();
  if (auto* mpeg = dynamic_cast<TagLib::MPEG::File*>(file)) return coverFrom(mpeg->ID3v2Tag());
  if (auto* wave = dynamic_cast<TagLib::RIFF::WAV::File*>(file)) return coverFrom(wave->ID3v2Tag());
  if (auto* flac = dynamic_cast<TagLib::FLAC::File*>(file)) return coverFrom(flac->pictureList());
  if (auto* mp4 = dynamic_cast<TagLib::MP4::File*>(file)) return coverFrom(mp4->tag());
  if (file == nullptr) return std::nullopt;
  if (auto* comment = dynamic_cast<TagLib::Ogg::XiphComment*>(file->tag()))
    return coverFrom(comment->pictureList());
  return std::nullopt;
}

}  // namespace sim
