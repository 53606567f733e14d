#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "converter/modConVersion.h"

namespace tessel {
namespace {

/// How a block begins and ends. The goldens hold all of it, in its place in a converted file.
struct Outline {
  const char* name;
  std::string_view block;
  std::ptrdiff_t lines;
  std::string_view first;
  std::string_view last;  ///< with its line break, where it has one
};

const Outline kOutlines[] = {
    {"stretch", kStretchBlock, 5, "define YELLHURTSOUNDSTRENGTHMP   50",
     "define MINYSTRETCH 8\r\n"},
    {"trip bomb laser mode", kTripbombLaserModeBlock, 4,
     "define TRIPBOMBLASERMODE        0     // 0 = always visable",
     "                                      // 3 = totally invisible"},
    {"qsize", kQsizeBlock, 4, "define QSIZE                    64      // total number of active",
     "                                        // (max 1024)"},
    {"gamestartup", kGamestartupBlock, 10,
     "gamestartup     DEFAULTVISIBILITY GENERICIMPACTDAMAGE MAXPLAYERHEALTH",
     "                FREEZERHURTOWNER QSIZE TRIPBOMBLASERMODE\r\n"},
    {"new beast defines", kNewbeastDefinesBlock, 3, "define NEWBEASTSTRENGTH         300",
     "define DOLPHINSTRENGTH          50\r\n"},
    {"names and quotes", kNamesAndQuotesBlock, 15, "definequote 122       <Please Leave Blank>",
     "defineskillname 3 DAMN I'M GOOD\r\n"},
    {"episode 4 levels", kEpisode4LevelsBlock, 11,
     "definelevelname 3 0 E4L1.map 03:04 01:32 IT'S IMPOSSIBLE",
     "definelevelname 3 10 E4L11.map 04:20 02:10 AREA 51"},
    {"music 4", kMusic4Block, 4, "music 4 missimp.mid prepd.mid bakedgds.mid cf.mid lemchill.mid",
     "music 1"},
    {"new beast sounds", kNewbeastSoundsBlock, 10,
     "definesound LIZARD_BEG    chokn12.voc         0   0   3  0   0",
     "definesound NEWBEAST_SPIT     blspit1a.voc      -128 128   0   0   0\r\n"},
    {"boss 4 sounds", kBoss4SoundsBlock, 7, "// BOSS4",
     "definesound BOS4_LAY      bqegg1a.voc           1024 1024  255 0  0\r\n"},
    {"store music", kStoreMusicBlock, 2,
     "definesound STORE_MUSIC         muzak028.voc       0   0 254   0 6144",
     "definesound STORE_MUSIC_BROKE   muzakdie.voc       0   0   0   0 6144\r\n"},
    {"jibbed sounds", kJibbedSoundsBlock, 3,
     "definesound JIBBED_ACTOR13      LETGOD01.VOC      0   0   255 12  0",
     "definesound JIBBED_ACTOR15      guysuk01.voc    0   0    0  12   0\r\n"},
    {"new sounds", NewSoundDefinitions(), 67,
     "definesound SUPERMARKET            aisle402.voc    0   0   0   4   0",
     "definesound JOKE                   joke.voc        0   0   128  0    0\r\n"},
};

TEST(ConversionBlocks, BeginAndEndLikeThis) {
  for (const auto& [name, block, lines, first, last] : kOutlines) {
    EXPECT_EQ(std::ranges::count(block, '\n') + (block.ends_with("\r\n") ? 0 : 1), lines) << name;
    EXPECT_TRUE(block.starts_with(std::string(first) + "\r\n")) << name;
    EXPECT_TRUE(block.ends_with("\r\n" + std::string(last))) << name;
  }
}

TEST(ConversionBlocks, BreakTheirLinesWithCrLfOnly) {
  for (const Outline& outline : kOutlines) {
    const std::string_view block = outline.block;
    for (std::size_t at = 0; at < block.size(); ++at) {
      const bool follows = at > 0 && block[at - 1] == '\r';
      EXPECT_EQ(block[at] == '\n', follows) << outline.name << " at " << at;
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
