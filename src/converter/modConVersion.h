// The texts that the version converter writes, line by line. Odd spellings are part of them, and so
// is whether the last line of a block ends with a line break.
#pragma once

#include <string_view>

namespace tessel {

/// The screen stretch limits, behind the strength of the yell.
inline constexpr std::string_view kStretchBlock =
    "define YELLHURTSOUNDSTRENGTHMP   50\r\n"
    "define MAXXSTRETCH 70\r\n"
    "define MAXYSTRETCH 70\r\n"
    "define MINXSTRETCH 9\r\n"
    "define MINYSTRETCH 8\r\n";

inline constexpr std::string_view kTripbombLaserModeBlock =
    "define TRIPBOMBLASERMODE        0     // 0 = always visable\r\n"
    "                                      // 1 = transluscense\r\n"
    "                                      // 2 = invisible w/o IR goggles\r\n"
    "                                      // 3 = totally invisible";

inline constexpr std::string_view kQsizeBlock =
    "define QSIZE                    64      // total number of active\r\n"
    "                                        // bullet holes, blood,\r\n"
    "                                        // footprints, money, ect...\r\n"
    "                                        // (max 1024)";

/// The start-up parameter list of the newer dialect.
inline constexpr std::string_view kGamestartupBlock =
    "gamestartup     DEFAULTVISIBILITY GENERICIMPACTDAMAGE MAXPLAYERHEALTH\r\n"
    "                STARTARMORHEALTH  RESPAWNACTORTIME RESPAWNITEMTIME\r\n"
    "                RUNNINGSPEED GRAVITATIONALCONSTANT RPGBLASTRADIUS\r\n"
    "                PIPEBOMBRADIUS SHRINKERBLASTRADIUS TRIPBOMBBLASTRADIUS\r\n"
    "                MORTERBLASTRADIUS BOUNCEMINEBLASTRADIUS SEENINEBLASTRADIUS\r\n"
    "                MAXPISTOLAMMO MAXSHOTGUNAMMO MAXCHAINGUNAMMO\r\n"
    "                MAXRPGAMMO MAXHANDBOMBAMMO MAXSHRINKERAMMO\r\n"
    "                MAXDEVISTATORAMMO MAXTRIPBOMBAMMO MAXFREEZEAMMO\r\n"
    "                MAXGROWAMMO CAMERASDESTRUCTABLE NUMFREEZEBOUNCES\r\n"
    "                FREEZERHURTOWNER QSIZE TRIPBOMBLASERMODE\r\n";

inline constexpr std::string_view kNewbeastDefinesBlock =
    "define NEWBEASTSTRENGTH         300\r\n"
    "define NEWBEASTSCRATCHAMOUNT   -22\r\n"
    "define DOLPHINSTRENGTH          50\r\n";

/// The last quotes, the names of the episodes and those of the skills.
inline constexpr std::string_view kNamesAndQuotesBlock =
    "definequote 122       <Please Leave Blank>\r\n"
    "definequote 123       AMMO FOR EXPANDER\r\n"
    "definequote 124       MAP HAS A DIFFERENT NUMBER OF PLAYERS\r\n"
    "\r\n"
    "// Volume titles cannot excede 32 characters.\r\n"
    "definevolumename 0 L.A. MELTDOWN\r\n"
    "definevolumename 1 LUNAR APOCALYPSE\r\n"
    "definevolumename 2 SHRAPNEL CITY\r\n"
    "definevolumename 3 THE BIRTH\r\n"
    "\r\n"
    "// Skill titles cannot excede 32 characters.\r\n"
    "defineskillname 0 PIECE OF CAKE\r\n"
    "defineskillname 1 LET'S ROCK\r\n"
    "defineskillname 2 COME GET SOME\r\n"
    "defineskillname 3 DAMN I'M GOOD\r\n";

inline constexpr std::string_view kEpisode4LevelsBlock =
    "definelevelname 3 0 E4L1.map 03:04 01:32 IT'S IMPOSSIBLE\r\n"
    "definelevelname 3 1 E4L2.map 04:00 02:00 ZANTH-BURGER\r\n"
    "definelevelname 3 2 E4L3.map 03:30 01:45 SHOP-N-BAG\r\n"
    "definelevelname 3 3 E4L4.map 06:32 03:16 BABE LAND\r\n"
    "definelevelname 3 4 E4L5.map 02:02 01:01 PIGSTY\r\n"
    "definelevelname 3 5 E4L6.map 03:04 01:52 GOING POSTAL\r\n"
    "definelevelname 3 6 E4L7.map 01:24 00:42 XXX-STACY\r\n"
    "definelevelname 3 7 E4L8.map 03:18 01:59 CRITICAL MASS\r\n"
    "definelevelname 3 8 E4L9.map 05:02 02:51 DERELICT\r\n"
    "definelevelname 3 9 E4L10.map 10:50 05:25 THE QUEEN\r\n"
    "definelevelname 3 10 E4L11.map 04:20 02:10 AREA 51";

/// The music of episode 4; it ends with the words that it replaces.
inline constexpr std::string_view kMusic4Block =
    "music 4 missimp.mid prepd.mid bakedgds.mid cf.mid lemchill.mid\r\n"
    "       pob.mid warehaus.mid layers.mid floghorn.mid depart.mid restrict.mid\r\n"
    "\r\n"
    "music 1";

inline constexpr std::string_view kNewbeastSoundsBlock =
    "definesound LIZARD_BEG    chokn12.voc         0   0   3  0   0\r\n"
    "\r\n"
    "// Newbeast\r\n"
    "definesound NEWBEAST_ROAM     blroam2a.voc     -128 128    3   0   0\r\n"
    "definesound NEWBEAST_RECOG    blrec4b.voc      1400   0    3   0   0\r\n"
    "definesound NEWBEAST_ATTACK   blrip1a.voc     -150  150    3   0   0\r\n"
    "definesound NEWBEAST_ATTACKMISS blrip1b.voc     -256  256  3   0   0\r\n"
    "definesound NEWBEAST_PAIN     blpain1b.voc      -256  256  3   0   0\r\n"
    "definesound NEWBEAST_DYING    bldie3a.voc        1200  100 3   0   0\r\n"
    "definesound NEWBEAST_SPIT     blspit1a.voc      -128 128   0   0   0\r\n";

inline constexpr std::string_view kBoss4SoundsBlock =
    "// BOSS4\r\n"
    "definesound BOS4_ROAM     bqroam2a.voc          1024 1024  255 0  0\r\n"
    "definesound BOS4_RECOG    bqrec2a.voc           1024 1024  255 0  3084\r\n"
    "definesound BOS4_ATTACK   bqshock3.voc          1024 1024  255 0  0\r\n"
    "definesound BOS4_PAIN     bqpain2a.voc          1024 1024  255 0  0\r\n"
    "definesound BOS4_DYING    bqdie1a.voc           1024 1024  255 0  0\r\n"
    "definesound BOS4_LAY      bqegg1a.voc           1024 1024  255 0  0\r\n";

inline constexpr std::string_view kStoreMusicBlock =
    "definesound STORE_MUSIC         muzak028.voc       0   0 254   0 6144\r\n"
    "definesound STORE_MUSIC_BROKE   muzakdie.voc       0   0   0   0 6144\r\n";

inline constexpr std::string_view kJibbedSoundsBlock =
    "definesound JIBBED_ACTOR13      LETGOD01.VOC      0   0   255 12  0\r\n"
    "definesound JIBBED_ACTOR14      getcrap1.voc      0   0    0  12   0\r\n"
    "definesound JIBBED_ACTOR15      guysuk01.voc    0   0    0  12   0\r\n";

/// The sound definitions that a converted file ends with: 67 lines, each with its line break.
std::string_view NewSoundDefinitions();

}  // namespace tessel
