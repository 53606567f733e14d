#include "qt/looks/StandardIcons.h"

#include <algorithm>

#include "qt/looks/SvgIcon.h"

namespace tessel {
namespace {

struct StandardIconRow {
  QStyle::StandardPixmap icon;
  const char* drawing;
};

constexpr StandardIconRow kStandardIcons[] = {
    {QStyle::SP_MessageBoxInformation, "BoxInformation"},
    {QStyle::SP_MessageBoxWarning, "BoxWarning"},
    {QStyle::SP_MessageBoxCritical, "BoxCritical"},
    {QStyle::SP_MessageBoxQuestion, "BoxQuestion"},
    {QStyle::SP_LineEditClearButton, "FindClose"},
    {QStyle::SP_FileIcon, "DialogFile"},
    {QStyle::SP_FileLinkIcon, "DialogFile"},
    {QStyle::SP_DirIcon, "DialogFolder"},
    {QStyle::SP_DirClosedIcon, "DialogFolder"},
    {QStyle::SP_DirOpenIcon, "DialogFolder"},
    {QStyle::SP_DirLinkIcon, "DialogFolder"},
    {QStyle::SP_DirLinkOpenIcon, "DialogFolder"},
    {QStyle::SP_DirHomeIcon, "DialogHome"},
    {QStyle::SP_ComputerIcon, "DialogComputer"},
    {QStyle::SP_DriveHDIcon, "DialogComputer"},
    {QStyle::SP_FileDialogNewFolder, "DialogNewFolder"},
    {QStyle::SP_FileDialogToParent, "DialogParent"},
    {QStyle::SP_FileDialogBack, "DialogBack"},
    {QStyle::SP_ArrowBack, "DialogBack"},
    {QStyle::SP_ArrowForward, "DialogForward"},
    {QStyle::SP_FileDialogDetailedView, "DialogDetails"},
    {QStyle::SP_FileDialogListView, "DialogList"},
};

}  // namespace

QIcon StandardIcon(QStyle::StandardPixmap icon) {
  const auto* row = std::ranges::find(kStandardIcons, icon, &StandardIconRow::icon);
  return row == std::ranges::end(kStandardIcons) ? QIcon() : SvgIcon(row->drawing);
}

}  // namespace tessel
