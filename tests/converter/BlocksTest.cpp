#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "converter/modConVersion.h"

namespace tessel {
namespace {

/// FNV-1a, 64 bits.
std::uint64_t Digest(std::string_view text) {
  std::uint64_t digest = 0xcbf29ce484222325;
  for (const char c : text) {
    digest = (digest ^ static_cast<unsigned char>(c)) * 0x100000001b3;
  }
  return digest;
}

/// What another transcription of the texts, by other means, came to.
struct Transcript {
  const char* name;
  std::string_view block;
  std::ptrdiff_t lines;
  std::size_t bytes;
  std::uint64_t digest;
};

const Transcript kTranscripts[] = {
    {"stretch", kStretchBlock, 5, 127, 0xfb20edccbe7122e7},
    {"trip bomb laser mode", kTripbombLaserModeBlock, 4, 254, 0x5639c7e1e1c120a6},
    {"qsize", kQsizeBlock, 4, 255, 0x4440bf3f2b1333c4},
    {"gamestartup", kGamestartupBlock, 10, 665, 0xe21f236fdc5ea5ab},
    {"new beast defines", kNewbeastDefinesBlock, 3, 109, 0x7e9f37ce3b92bad2},
    {"names and quotes", kNamesAndQuotesBlock, 15, 507, 0x8da1722e35195ddc},
    {"episode 4 levels", kEpisode4LevelsBlock, 11, 584, 0x1770e514753c72ef},
    {"music 4", kMusic4Block, 4, 150, 0x3df3768147f6df98},
    {"new beast sounds", kNewbeastSoundsBlock, 10, 569, 0x29db18799eba59c0},
    {"boss 4 sounds", kBoss4SoundsBlock, 7, 427, 0x3eeeabc1401c02c6},
    {"store music", kStoreMusicBlock, 2, 142, 0xdf6ffeac3a895342},
    {"jibbed sounds", kJibbedSoundsBlock, 3, 207, 0x9e6d5e62a8d4a13e},
    {"new sounds", NewSoundDefinitions(), 67, 4726, 0x949a59d1476d81cb},
};

TEST(ConversionBlocks, AgreeWithAnotherTranscriptionByteForByte) {
  for (const Transcript& transcript : kTranscripts) {
    const std::string_view block = transcript.block;
    const bool broken = block.ends_with("\r\n");
    EXPECT_EQ(std::ranges::count(block, '\n') + (broken ? 0 : 1), transcript.lines)
        << transcript.name;
    EXPECT_EQ(block.size(), transcript.bytes) << transcript.name;
    EXPECT_EQ(Digest(block), transcript.digest) << transcript.name;
  }
}

TEST(ConversionBlocks, BreakTheirLinesWithCrLfOnly) {
  for (const Transcript& transcript : kTranscripts) {
    const std::string_view block = transcript.block;
    for (std::size_t at = 0; at < block.size(); ++at) {
      const bool follows = at > 0 && block[at - 1] == '\r';
      EXPECT_EQ(block[at] == '\n', follows) << transcript.name << " at " << at;
    }
  }
}

TEST(ConversionBlocks, KeepTheirOddSpellings) {
  EXPECT_NE(kTripbombLaserModeBlock.find("visable"), std::string_view::npos);
  EXPECT_NE(kTripbombLaserModeBlock.find("transluscense"), std::string_view::npos);
  EXPECT_NE(kQsizeBlock.find("ect..."), std::string_view::npos);
  EXPECT_NE(kNamesAndQuotesBlock.find("excede"), std::string_view::npos);
}

}  // namespace
}  // namespace tessel
