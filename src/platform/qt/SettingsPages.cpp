#include "platform/qt/SettingsPages.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QScrollArea>

#include "platform/qt/ButtonViews.h"
#include "platform/qt/ComboBoxView.h"
#include "platform/qt/ControlView.h"
#include "platform/qt/ListBoxView.h"
#include "platform/qt/QtText.h"
#include "platform/qt/TextBoxView.h"
#include "platform/qt/TwipScale.h"

namespace tessel {
namespace {

// The common grid: columns of one width, a caption above each box.
constexpr int kColumns = 4;
constexpr int kColumnWidth = 230;
constexpr int kColumnGap = 18;
constexpr int kRowGap = 2;
constexpr int kCaptionRow = 0;
constexpr int kBoxRow = 1;

/// Puts the controls of one page on the grid and into the map.
class PageBuilder {
 public:
  PageBuilder(HostedControls& controls, WidgetMap& widgets, QWidget* page)
      : c(controls), widgets_(widgets), page_(page), grid_(new QGridLayout(page)) {
    grid_->setContentsMargins(0, 0, 0, 0);
    grid_->setHorizontalSpacing(kColumnGap);
    grid_->setVerticalSpacing(kRowGap);
    grid_->setRowStretch(kBoxRow, 1);
    for (int column = 0; column < kColumns; ++column) grid_->setColumnMinimumWidth(column, 120);
    grid_->setColumnStretch(kColumns, 1);
  }

  template <class View, class Model>
  View* Make(Model& model, const QString& accessibleName) {
    auto* view = new View(model, page_);
    view->setAccessibleName(accessibleName);
    widgets_.Add(model, view);
    return view;
  }

  QLabel* Caption(const QString& text, QWidget* buddy) {
    auto* caption = new QLabel(text, page_);
    caption->setBuddy(buddy);
    return caption;
  }

  void AddList(ListBox& model, const QString& caption, const QString& name, int column) {
    auto* list = Make<ListBoxView>(model, name);
    list->setMinimumWidth(120);
    list->setMaximumWidth(kColumnWidth);
    grid_->addWidget(Caption(caption, list), kCaptionRow, column);
    grid_->addWidget(list, kBoxRow, column);
    grid_->setColumnStretch(column, 1000);
  }

  void AddValueBox(SettingsPage page, int column) {
    auto* box = Make<ComboBoxView>(c.cmbweap[page], QObject::tr("Current value"));
    auto* label = Make<LabelView>(c.lblValue[page], QObject::tr("Current Value:"));
    label->setBuddy(box);
    box->setFixedWidth(120);
    grid_->addWidget(label, kCaptionRow, column);
    grid_->addWidget(box, kBoxRow, column, Qt::AlignTop | Qt::AlignLeft);
  }

  void AddOptions(const QString& caption, OptionButton& yes, OptionButton& no, QBoxLayout* column) {
    auto* group = new QGroupBox(caption, page_);
    auto* row = new QHBoxLayout(group);
    row->setContentsMargins(8, 2, 8, 4);
    row->setSpacing(16);
    row->addWidget(Make<OptionButtonView>(yes, caption + " " + ShownText(yes.Caption())));
    row->addWidget(Make<OptionButtonView>(no, caption + " " + ShownText(no.Caption())));
    row->addStretch();
    column->addWidget(group);
  }

  HostedControls& c;
  WidgetMap& widgets_;
  QWidget* page_;
  QGridLayout* grid_;
};

void BuildPlayerPage(PageBuilder& page) {
  page.AddList(page.c.lstPlayers, QObject::tr("Select &Item:"), QObject::tr("Player items"), 0);
  page.AddValueBox(kPlayerPage, 1);
}

void BuildWeaponPage(PageBuilder& page) {
  page.AddList(page.c.lstWeapInfo, QObject::tr("Select &Category:"),
               QObject::tr("Weapon categories"), 0);
  page.AddList(page.c.lstWeapon, QObject::tr("Select &Weapon:"), QObject::tr("Weapons"), 1);
  page.AddValueBox(kWeaponPage, 2);
}

void BuildEnemyPage(PageBuilder& page) {
  page.AddList(page.c.lstEnemy, QObject::tr("Select &Item:"), QObject::tr("Enemy items"), 0);
  page.AddValueBox(kEnemyPage, 1);
}

void BuildMiscPage(PageBuilder& page) {
  page.AddList(page.c.lstConMisc, QObject::tr("Select &Item:"), QObject::tr("Misc items"), 0);
  page.AddValueBox(kMiscPage, 1);
  auto* options = new QVBoxLayout;
  options->setSpacing(6);
  page.AddOptions(QObject::tr("Cameras Destructable:"), page.c.optCamYes, page.c.optCamNo, options);
  page.AddOptions(QObject::tr("Freeze Hurt Owner:"), page.c.optFreezYes, page.c.optFreezNo,
                  options);
  options->addStretch();
  page.grid_->addLayout(options, kCaptionRow, 2, 2, 1);
}

void BuildLevelPage(PageBuilder& page) {
  auto* level = page.Make<ComboBoxView>(page.c.cboEpisode, QObject::tr("Episode and level"));
  level->setMaximumWidth(kColumnWidth);
  auto* map = page.Make<TextBoxView>(page.c.txtMap, QObject::tr("Map file"));
  auto* browse = page.Make<CommandButtonView>(page.c.cmdMap, QObject::tr("Browse for a map file"));
  auto* insertMap =
      page.Make<CommandButtonView>(page.c.cmdInsert[0], QObject::tr("Insert the map file"));
  auto* title = page.Make<TextBoxView>(page.c.txtTitle, QObject::tr("Title"));
  auto* insertTitle =
      page.Make<CommandButtonView>(page.c.cmdInsert[1], QObject::tr("Insert the title"));

  QGridLayout& grid = *page.grid_;
  grid.setRowStretch(kBoxRow, 0);
  grid.setHorizontalSpacing(8);
  grid.addWidget(page.Caption(QObject::tr("&Episode/Level"), level), 0, 0);
  grid.addWidget(level, 1, 0);
  grid.addItem(new QSpacerItem(kColumnGap - 2 * 8, 1), 0, 1);
  grid.addWidget(page.Caption(QObject::tr("&Map file"), map), 0, 2);
  grid.addWidget(map, 1, 2);
  grid.addWidget(insertMap, 1, 3);
  grid.addWidget(browse, 1, 4);
  grid.setRowMinimumHeight(2, 4);
  grid.addWidget(page.Caption(QObject::tr("&Title"), title), 3, 2);
  grid.addWidget(title, 4, 2);
  grid.addWidget(insertTitle, 4, 3);
  grid.setRowStretch(5, 1);
  grid.setColumnMinimumWidth(1, 0);
  grid.setColumnStretch(0, 1000);
  grid.setColumnStretch(2, 1000);
  grid.setColumnStretch(kColumns, 0);
  grid.setColumnStretch(5, 1);
  map->setMaximumWidth(2 * kColumnWidth);
  title->setMaximumWidth(2 * kColumnWidth);
}

QWidget* MakeParameterPane(PageBuilder& page) {
  auto* parameters = page.Make<LabelView>(page.c.lblParams, QObject::tr("Parameters"));
  parameters->setWordWrap(true);
  parameters->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  parameters->setMargin(4);
  parameters->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* pane = new QScrollArea(page.page_);
  pane->setWidget(parameters);
  pane->setWidgetResizable(true);
  pane->setAccessibleName(QObject::tr("Parameters"));
  pane->setMaximumWidth(2 * kColumnWidth);
  return pane;
}

void BuildFunctionsPage(PageBuilder& page) {
  auto* search = page.Make<TextBoxView>(page.c.txtSearch, QObject::tr("Search for a function"));
  search->setClearButtonEnabled(true);
  search->setMaximumWidth(kColumnWidth);
  auto* insert =
      page.Make<CommandButtonView>(page.c.cmdInsert[2], QObject::tr("Insert the function"));
  auto* edit = page.Make<CommandButtonView>(page.c.cmdAddword,
                                            QObject::tr("Add or edit words and parameters"));
  page.grid_->addWidget(page.Caption(QObject::tr("Searc&h:"), search), kCaptionRow, 0);
  auto* column = new QVBoxLayout;
  column->setSpacing(6);
  column->addWidget(search);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(insert);
  buttons->addWidget(edit);
  buttons->addStretch();
  column->addLayout(buttons);
  column->addStretch();
  page.grid_->addLayout(column, kBoxRow, 0);
  page.grid_->setColumnStretch(0, 1000);
  page.AddList(page.c.lstWords, QObject::tr("Select &Function:"), QObject::tr("Functions"), 1);
  QWidget* parameters = MakeParameterPane(page);
  page.grid_->addWidget(page.Caption(QObject::tr("&Parameters:"), parameters), kCaptionRow, 2);
  page.grid_->addWidget(parameters, kBoxRow, 2);
  page.grid_->setColumnStretch(2, 2000);
}

}  // namespace

PageView::PageView(PictureBox& page, Frame& frame, QWidget* parent)
    : QWidget(parent), page_(page), frame_(frame), frameView_(new QWidget(this)) {
  pageRefresh_ = page_.Refresh.Connect([this] { Draw(); });
  frameRefresh_ = frame_.Refresh.Connect([this] { Draw(); });
  Draw();
}

void PageView::Draw() {
  if (InSight(page_)) {
    setGeometry(PixelGeometry(page_, *this));
    frameView_->setGeometry(PixelGeometry(frame_, *this));
  }
  DrawState(*this, page_);
  DrawState(*frameView_, frame_);
}

PageView* MakeSettingsPage(HostedControls& controls, SettingsPage page, WidgetMap& widgets,
                           QWidget* parent) {
  using Build = void (*)(PageBuilder&);
  constexpr Build kBuilders[kSettingsPages] = {BuildPlayerPage, BuildWeaponPage,
                                               BuildEnemyPage,  BuildMiscPage,
                                               BuildLevelPage,  BuildFunctionsPage};
  auto* view = new PageView(controls.picCon[page], controls.fraCon[page], parent);
  widgets.Add(controls.picCon[page], view);
  widgets.Add(controls.fraCon[page], view->Inside());
  PageBuilder builder(controls, widgets, view->Inside());
  kBuilders[page](builder);
  return view;
}

}  // namespace tessel
