#include "control/Wiring.h"

namespace tessel {

Levels::Controls LevelsControls(HostedControls& c) {
  return {.tbsCon = c.tbsCon,
          .cboEpisode = c.cboEpisode,
          .txtMap = c.txtMap,
          .txtTitle = c.txtTitle,
          .cmdInsert = c.cmdInsert,
          .dlgCommon = c.dlgCommon};
}

Levels::Services LevelsServices(const Services& s) {
  return {.pointer = s.pointer, .fileDialogs = s.fileDialogs, .files = s.files, .focus = s.focus};
}

SettingsPanel::Controls SettingsControls(HostedControls& c) {
  return {.tbToolBar = c.tbToolBar,
          .tbsCon = c.tbsCon,
          .picCon = c.picCon,
          .lstPlayers = c.lstPlayers,
          .lstWeapInfo = c.lstWeapInfo,
          .lstWeapon = c.lstWeapon,
          .lstEnemy = c.lstEnemy,
          .lstConMisc = c.lstConMisc,
          .cmbweap = c.cmbweap,
          .lblValue = c.lblValue,
          .optCamYes = c.optCamYes,
          .optCamNo = c.optCamNo,
          .optFreezYes = c.optFreezYes,
          .optFreezNo = c.optFreezNo,
          .cboEpisode = c.cboEpisode};
}

WordPanel::Controls WordControls(HostedControls& c) {
  return {.tbsCon = c.tbsCon,
          .txtSearch = c.txtSearch,
          .lstWords = c.lstWords,
          .lblParams = c.lblParams,
          .cmdAddword = c.cmdAddword};
}

WordPanel::Services WordServices(const Services& s) {
  return {.settings = s.settings, .messages = s.messages, .forms = s.forms, .focus = s.focus};
}

Randomizer::Controls RandomizerControls(HostedControls& c) {
  return {.tbsCon = c.tbsCon,
          .lstPlayers = c.lstPlayers,
          .lstWeapInfo = c.lstWeapInfo,
          .lstWeapon = c.lstWeapon,
          .lstEnemy = c.lstEnemy,
          .lstConMisc = c.lstConMisc,
          .cmbweap = c.cmbweap};
}

Randomizer::Services RandomizerServices(const Services& s) {
  return {.forms = s.forms, .messages = s.messages, .random = s.random, .loop = s.loop};
}

}  // namespace tessel
