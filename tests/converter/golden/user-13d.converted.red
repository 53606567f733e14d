1: /*{\r\n}
2: {Converted to 1.4/1.5 by Zanth Manager}\r\n
25: define RUNNINGSPEED 53200               // how fast Zanth gets at a run{\r\n}
26: {define GRAVITATIONALCONSTANT 176}\r\n
30: {define YELLHURTSOUNDSTRENGTHMP   50\r\n}
31: {define MAXXSTRETCH 70\r\n}
32: {define MAXYSTRETCH 70\r\n}
33: {define MINXSTRETCH 9\r\n}
34: {define MINYSTRETCH 8\r\n}
56: // ******************{\r\n}
57: {\r\n}
58: {define SWEARFREQUENCY          100      // The lower, the less.}\r\n
66: define RESPAWNITEMTIME          768     // ticks until an item comes back{\r\n}
67: {define QSIZE                    64      // total number of active\r\n}
68: {                                        // bullet holes, blood,\r\n}
69: {                                        // footprints, money, ect...\r\n}
70: {                                        // (max 1024)}\r\n
86: {define SHRINKERBLASTRADIUS      680}\r\n
101: define MAXSHRINKERAMMO          50{\r\n}
102: {define MAXGROWAMMO              50}\r\n
104: define MAXTRIPBOMBAMMO          10{\r\n}
105: {define TRIPBOMBLASERMODE        0     // 0 = always visable\r\n}
106: {                                      // 1 = transluscense\r\n}
107: {                                      // 2 = invisible w/o IR goggles\r\n}
108: {                                      // 3 = totally invisible}\r\n
121: define CRYSTALAMMOAMOUNT        5       // in a crystal for it{\r\n}
122: {define GROWCRYSTALAMMOAMOUNT    20}\r\n
137: {define FREEZETHROWER_WEAPON_STRENGTH    20}\r\n
138: define SHRINKER_WEAPON_STRENGTH         0       // it does not wound, it shrinks{\r\n}
139: {define GROWSPARK_WEAPON_STRENGTH        15}\r\n
164: define SHARKBITESTRENGTH        9       // what one bite takes{\r\n}
165: {define NEWBEASTSTRENGTH         300\r\n}
166: {define NEWBEASTSCRATCHAMOUNT   -22\r\n}
167: {define DOLPHINSTRENGTH          50\r\n}
175: define BOSS3STRENGTH            4500{\r\n}
176: {define BOSS4STRENGTH            6000}\r\n
185: {define ROBOTMOUSESTRENGTH               45}\r\n
186: {define MANWOMANSTRENGTH}                100\r\n
187: define GOTTASMART               200     // a bystander who defends himself{\r\n}
188: {define PIRATEGALSTRENGTH 200}\r\n
196: {gamestartup     DEFAULTVISIBILITY GENERICIMPACTDAMAGE MAXPLAYERHEALTH\r\n}
197: {                STARTARMORHEALTH  RESPAWNACTORTIME RESPAWNITEMTIME\r\n}
198: {                RUNNINGSPEED GRAVITATIONALCONSTANT RPGBLASTRADIUS\r\n}
199: {                PIPEBOMBRADIUS SHRINKERBLASTRADIUS TRIPBOMBBLASTRADIUS\r\n}
200: {                MORTERBLASTRADIUS BOUNCEMINEBLASTRADIUS SEENINEBLASTRADIUS\r\n}
201: {                MAXPISTOLAMMO MAXSHOTGUNAMMO MAXCHAINGUNAMMO\r\n}
202: {                MAXRPGAMMO MAXHANDBOMBAMMO MAXSHRINKERAMMO\r\n}
203: {                MAXDEVISTATORAMMO MAXTRIPBOMBAMMO MAXFREEZEAMMO\r\n}
204: {                MAXGROWAMMO CAMERASDESTRUCTABLE NUMFREEZEBOUNCES\r\n}
205: {                FREEZERHURTOWNER QSIZE TRIPBOMBLASERMODE\r\n}
212: // Maximum quote size is 64 characters.{\r\n}
213: {// Maximum quotes is 192 slots.}\r\n
243: {definequote 28        WILL ALWAYS HAVE NO FUTURE}\r\n
275: {definequote 60        GOT SHRINKER/EXPANDER!}\r\n
336: definequote 121       THE SHOW IS OVER{\r\n}
337: {definequote 122       <Please Leave Blank>\r\n}
338: {definequote 123       AMMO FOR EXPANDER\r\n}
339: {definequote 124       MAP HAS A DIFFERENT NUMBER OF PLAYERS\r\n}
340: {\r\n}
341: {// Volume titles cannot excede 32 characters.\r\n}
342: {definevolumename 0 L.A. MELTDOWN\r\n}
343: {definevolumename 1 LUNAR APOCALYPSE\r\n}
344: {definevolumename 2 SHRAPNEL CITY\r\n}
345: {definevolumename 3 THE BIRTH\r\n}
346: {\r\n}
347: {// Skill titles cannot excede 32 characters.\r\n}
348: {defineskillname 0 PIECE OF CAKE\r\n}
349: {defineskillname 1 LET'S ROCK\r\n}
350: {defineskillname 2 COME GET SOME\r\n}
351: {defineskillname 3 DAMN I'M GOOD\r\n}
358: {// Level file names cannot excede 128 characters.}\r\n
370: {definelevelname 0 7 E1L8.map 99:99 99:99 MULTIPLAYER 2}\r\n
371: {definelevelname 0 8 E1L9.map 12:48 16:32 VOID ZONE}\r\n
372: {definelevelname 0 9 E1L10.map 0T:HX 11:38 ROACH CONDO}\r\n
373: {definelevelname 0 10 E1L11.map 08:67 53:09 ANTIPROFIT}\r\n
397: definelevelname 2 10 E3L11.map 02:00 01:07 FREEWAY{\r\n}
398: {\r\n}
399: {definelevelname 3 0 E4L1.map 03:04 01:32 IT'S IMPOSSIBLE\r\n}
400: {definelevelname 3 1 E4L2.map 04:00 02:00 ZANTH-BURGER\r\n}
401: {definelevelname 3 2 E4L3.map 03:30 01:45 SHOP-N-BAG\r\n}
402: {definelevelname 3 3 E4L4.map 06:32 03:16 BABE LAND\r\n}
403: {definelevelname 3 4 E4L5.map 02:02 01:01 PIGSTY\r\n}
404: {definelevelname 3 5 E4L6.map 03:04 01:52 GOING POSTAL\r\n}
405: {definelevelname 3 6 E4L7.map 01:24 00:42 XXX-STACY\r\n}
406: {definelevelname 3 7 E4L8.map 03:18 01:59 CRITICAL MASS\r\n}
407: {definelevelname 3 8 E4L9.map 05:02 02:51 DERELICT\r\n}
408: {definelevelname 3 9 E4L10.map 10:50 05:25 THE QUEEN\r\n}
409: {definelevelname 3 10 E4L11.map 04:20 02:10 AREA 51}\r\n
418: {music 0 zantitle.mid BRIEFING.MID}\r\n
420: {music 4 missimp.mid prepd.mid bakedgds.mid cf.mid lemchill.mid\r\n}
421: {       pob.mid warehaus.mid layers.mid floghorn.mid depart.mid restrict.mid\r\n}
422: {\r\n}
423: {music 1} reddust.mid pierine.mid glassmkt.mid coldstor.mid nightshf.mid\r\n
450:    - The 5th number is volume adjustment.{\r\n}
451: {5. Zanth may have up to 400 total sound definitions.}\r\n
467: {definesound RPG_EXPLODE            rpgboom.voc   -224   0 128   0      0}\r\n
471: {definesound SHRINKER_FIRE          shrzap.voc       0   0   5   0      0}\r\n
473: definesound ACTOR_SHRINKING        shrdown.voc      0 1024   2   0      0{\r\n}
474: {definesound ACTOR_GROWING       enlarge.voc    1024     0     2   0   0}\r\n
514: definesound SLIM_HATCH             slhatch.voc      {-256  256}   3   0      0\r\n
515: definesound SLIM_ROAM              slroam01.voc     {-256  256}   3   0      0\r\n
516: definesound SLIM_RECOG             slrec01.voc      {-256  256}   3   0      0\r\n
517: definesound SLIM_ATTACK            slatk01.voc      {-256  256}   3   0      0\r\n
518: // definesound SLIM_PAIN           slpain01.voc     {-256  256}   3   0      0\r\n
519: definesound SLIM_DYING             sldie01.voc      {-256  256}   3   0      0\r\n
543: definesound LIZARD_SPIT            lzspit.voc    -128 128   3   0      0{\r\n}
544: {definesound LIZARD_BEG    chokn12.voc         0   0   3  0   0\r\n}
545: {\r\n}
546: {// Newbeast\r\n}
547: {definesound NEWBEAST_ROAM     blroam2a.voc     -128 128    3   0   0\r\n}
548: {definesound NEWBEAST_RECOG    blrec4b.voc      1400   0    3   0   0\r\n}
549: {definesound NEWBEAST_ATTACK   blrip1a.voc     -150  150    3   0   0\r\n}
550: {definesound NEWBEAST_ATTACKMISS blrip1b.voc     -256  256  3   0   0\r\n}
551: {definesound NEWBEAST_PAIN     blpain1b.voc      -256  256  3   0   0\r\n}
552: {definesound NEWBEAST_DYING    bldie3a.voc        1200  100 3   0   0\r\n}
553: {definesound NEWBEAST_SPIT     blspit1a.voc      -128 128   0   0   0\r\n}
614: definesound BOS3_DYING             b3die01.voc      0   0 255   0      0{\r\n}
615: {// BOSS4\r\n}
616: {definesound BOS4_ROAM     bqroam2a.voc          1024 1024  255 0  0\r\n}
617: {definesound BOS4_RECOG    bqrec2a.voc           1024 1024  255 0  3084\r\n}
618: {definesound BOS4_ATTACK   bqshock3.voc          1024 1024  255 0  0\r\n}
619: {definesound BOS4_PAIN     bqpain2a.voc          1024 1024  255 0  0\r\n}
620: {definesound BOS4_DYING    bqdie1a.voc           1024 1024  255 0  0\r\n}
621: {definesound BOS4_LAY      bqegg1a.voc           1024 1024  255 0  0\r\n}
625: definesound SQUISHED               squish.voc       {-128  0}   3   0      0\r\n
643: definesound JIBBED_ACTOR12         zjib12.voc       0   0 128  12      0{\r\n}
644: {definesound JIBBED_ACTOR13      LETGOD01.VOC      0   0   255 12  0\r\n}
645: {definesound JIBBED_ACTOR14      getcrap1.voc      0   0    0  12   0\r\n}
646: {definesound JIBBED_ACTOR15      guysuk01.voc    0   0    0  12   0\r\n}
651: {definesound ZANTH_SCREAM           zscream.voc      0   0 0   4      0}\r\n
652: {definesound ZANTH_LOOKINTOMIRROR   zmirror.voc      0   0 255  4      0}\r\n
714: {definesound WIND_REPEAT            windloop.voc  -128 128   0   2      0}\r\n
715: definesound STEAM_HISSING          steam.voc        0   0   0   {0 10240}\r\n
716: {definesound BAR_MUSIC              barband.voc      0   0 254   2   6144\r\n}
717: {definesound STORE_MUSIC         muzak028.voc       0   0 254   0 6144\r\n}
718: {definesound STORE_MUSIC_BROKE   muzakdie.voc       0   0   0   0 6144\r\n}
748: {definesound GENERIC_AMBIENCE12     drip3.voc        0   0   0   3      0}\r\n
759: definesound GENERIC_AMBIENCE23     ambnt23.voc      0   0   0   2      0{\r\n}
760: {definesound SUPERMARKET            aisle402.voc    0   0   0   4   0}\r\n
771: {// definesound ENDSEQVOL3SND1}         end3s01.voc      0   0 255   0      0\r\n
778: {\r\n}
779: {definesound SUPERMARKET            aisle402.voc    0   0   0   4   0\r\n}
780: {definesound MOUSEANNOY             annoy03.voc     0   0   0   4   0\r\n}
781: {definesound BOOKEM                 bookem03.voc    0   0   0   4   0\r\n}
782: {definesound SUPERMARKETCRY         cry01.voc       0   0   0   4   0\r\n}
783: {definesound DESTRUCT               detruct2.voc    0   0 255   0   0\r\n}
784: {definesound EATFOOD                eat08.voc       0   0   0  12   0\r\n}
785: {definesound MAKEMYDAY              makeday1.voc    0   0   0   4   0\r\n}
786: {definesound WITNESSSTAND           sohelp02.voc    0   0   0   4   0\r\n}
787: {definesound VACATIONSPEECH         vacatn01.voc    0   0   0  12   0\r\n}
788: {definesound YIPPEE1                yippie01.voc    0   0 255  12   0\r\n}
789: {definesound YOHOO1                 yohoho01.voc    0   0 128   4   0\r\n}
790: {definesound YOHOO2                 yohoho09.voc    0   0 128   4   0\r\n}
791: {definesound DOLPHINSND             dolphin.voc  -512 512   0   0   0\r\n}
792: {definesound TOUGHGALSND1           dom03.voc       0   0   0   0   0\r\n}
793: {definesound TOUGHGALSND2           dom09.voc       0   0   0   0   0\r\n}
794: {definesound TOUGHGALSND3           dom11.voc       0   0   0   0   0\r\n}
795: {definesound TOUGHGALSND4           dom12.voc       0   0   0   0   0\r\n}
796: {definesound TANK_ROAM              tank3a.voc      0   0   255 0 6000\r\n}
797: {definesound VOL4_1                 jacuzzi2.voc    0   0   0   1   0\r\n}
798: {definesound VOL4_2                 typing.voc      0   0   0   1   0\r\n}
799: {definesound COOKINGDEEPFRIER       deepfry1.voc    0   0   0   0   0\r\n}
800: {definesound WHINING_DOG            dogwhine.voc    0   0   0   0   0\r\n}
801: {definesound DEAD_DOG               dogyelp.voc     0   0   0   0   0\r\n}
802: {definesound LIGHTNING_SLAP         tclap2a.voc  -256 256   0   0   0\r\n}
803: {definesound THUNDER                trumble.voc  -512 256   0   0   0\r\n}
804: {definesound HAPPYMOUSESND1         sweet03.voc     0   0   0   0   0\r\n}
805: {definesound HAPPYMOUSESND2         sweet04.voc     0   0   0   0   0\r\n}
806: {definesound HAPPYMOUSESND3         sweet05.voc     0   0   0   0   0\r\n}
807: {definesound HAPPYMOUSESND4         sweet16.voc     0   0   0   0   0\r\n}
808: {definesound ALARM                  alarm1a.voc  -128 128 255   2   0\r\n}
809: {definesound RAIN                   rain3a.voc     -128 128 0   2   0\r\n}
810: {definesound DTAG_GREENRUN          GRUN.VOC       -128 128 255 128 0\r\n}
811: {definesound DTAG_BROWNRUN          BRUN.VOC       -128 128 255 128 0\r\n}
812: {definesound DTAG_GREENSCORE        GSCORE.VOC     -128 128 255 128 0\r\n}
813: {definesound DTAG_BROWNSCORE        BSCORE.VOC     -128 128 255 128 0\r\n}
814: {definesound SCREECH                skidcr1.voc    -128 128   4 0   0\r\n}
815: {definesound INTRO4_1               intro4h1.voc    0   0   255 0   0\r\n}
816: {definesound INTRO4_B               intro4h2.voc    0   0   255 0   0\r\n}
817: {definesound INTRO4_2               typing.voc      0   0   255 0   0\r\n}
818: {definesound INTRO4_3               introa.voc      0   0   255 0   0\r\n}
819: {definesound INTRO4_4               introb.voc      0   0   255 0   0\r\n}
820: {definesound INTRO4_5               clang1.voc      0   0   255 0   0\r\n}
821: {definesound INTRO4_6               introc.voc      0   0   255 0   0\r\n}
822: {definesound BOSS4_DEADSPEECH       abort01.voc     0   0   255  4   0\r\n}
823: {definesound BOSS4_FIRSTSEE         kick01-i.voc    0   0   255 12   0\r\n}
824: {definesound PARTY_SPEECH           party03.voc     0   0   255 12   0\r\n}
825: {definesound POSTAL_SPEECH          postal01.voc    0   0   255  4   0\r\n}
826: {definesound TGSPEECH               vocal02.voc     0   0   254  8   0\r\n}
827: {definesound DOGROOMSPEECH          meat04-n.voc    0   0   255  4   0\r\n}
828: {definesound SMACKED                smack02.voc     0   0   255 12   0\r\n}
829: {definesound MDEVSPEECH             mdevl01.voc     0   0   255 12   0\r\n}
830: {definesound AREA51SPEECH           indpnc01.voc    0   0   255  4   0\r\n}
831: {definesound JEEPSOUND              jeep2a.voc      0   0   0    2   0\r\n}
832: {definesound BIGDOORSLAM            cdoor1b.voc     0   0   129  0   0\r\n}
833: {definesound WAVESOUND              wave1a.voc      0   0   129  3   0\r\n}
834: {definesound ILLBEBACK              beback01.voc    0   0   255  4   0\r\n}
835: {definesound VOL4ENDSND1            sbr1c.voc       0   0   255  0    0\r\n}
836: {definesound VOL4ENDSND2            squish1a.voc    0   0   254  0    0\r\n}
837: {definesound EXPANDERSHOOT          exshot3b.voc   -32 80   128  0    0\r\n}
838: {definesound EXPANDERHIT            deepfry1.voc    0   0   128  0    0\r\n}
839: {definesound SNAKESPEECH            escape01.voc    0   0   255  4    0\r\n}
840: {definesound GETBACKTOWORK          slacker1.voc    0   0   255  0    0\r\n}
841: {definesound BIGBANG                bang1.voc       0   0   255  0    0\r\n}
842: {definesound HORNSND                shorn1.voc      0   0   255  2    0\r\n}
843: {definesound BELLSND                sbell1a.voc     0   0   255  2    0\r\n}
844: {definesound GOAWAY                 goaway.voc      0   0    4   0    0\r\n}
845: {definesound JOKE                   joke.voc        0   0   128  0    0\r\n}
