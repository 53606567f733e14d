#include "qt/panel/SettingsPages.h"

#include <QGroupBox>
#include <QLabel>
#include <QScrollArea>
#include <algorithm>
#include <initializer_list>

#include "qt/base/AccessibleNames.h"
#include "qt/base/ControlView.h"
#include "qt/base/Mnemonics.h"
#include "qt/base/QtText.h"
#include "qt/base/TwipScale.h"
#include "qt/views/ButtonViews.h"
#include "qt/views/ComboBoxView.h"
#include "qt/views/ListBoxView.h"
#include "qt/views/TextBoxView.h"

namespace tessel {
namespace {

constexpr int kNarrowestColumn = 120;
constexpr int kWidestColumn = 250;
constexpr int kValueBoxWidth = 120;
constexpr int kColumnGap = 18;
constexpr int kRowGap = 3;
constexpr int kCaptionRow = 0;
constexpr int kBoxRow = 1;

/// Puts the controls of one page on the grid and into the map.
class PageBuilder {
 public:
  PageBuilder(HostedControls& controls, WidgetMap& widgets, GridPage* page)
      : c(controls), widgets_(widgets), page_(page), grid_(page->Grid()) {}

  template <class View, class Model>
  View* Make(Model& model, const QString& accessibleName) {
    auto* view = new View(model, page_);
    NameForReaders(*view, accessibleName);
    widgets_.Add(model, view);
    return view;
  }

  QWidget* MakeButton(CommandButton& model, const QString& accessibleName, QChar mnemonic) {
    auto* button = Make<CommandButtonView>(model, accessibleName);
    button->SetMnemonic(mnemonic);
    return button;
  }

  QLabel* Caption(const QString& text, QWidget* buddy) {
    auto* caption = new QLabel(text, page_);
    caption->setBuddy(buddy);
    return caption;
  }

  void AddList(ListBox& model, const QString& caption, const QString& name, int column) {
    auto* list = Make<ListBoxView>(model, name);
    list->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    grid_->addWidget(Caption(caption, list), kCaptionRow, column);
    grid_->addWidget(list, kBoxRow, column);
  }

  void AddValueBox(SettingsPage page, int column) {
    auto* box = Make<ComboBoxView>(c.cmbweap[page], QObject::tr("Current value"));
    auto* label = Make<LabelView>(c.lblValue[page], QObject::tr("Current Value:"));
    label->setBuddy(box);
    label->SetMnemonic('u');
    box->setFixedWidth(kValueBoxWidth);
    grid_->addWidget(label, kCaptionRow, column);
    grid_->addWidget(box, kBoxRow, column, Qt::AlignTop | Qt::AlignLeft);
  }

  void AddOptions(const QString& caption, OptionButton& yes, OptionButton& no, QBoxLayout* column) {
    auto* group = new QGroupBox(caption, page_);
    auto* row = new QHBoxLayout(group);
    row->setContentsMargins(8, 2, 8, 4);
    row->setSpacing(16);
    for (OptionButton* option : {&yes, &no}) {
      const QString name = PlainCaption(caption) + " " + ShownText(option->Caption());
      row->addWidget(Make<OptionButtonView>(*option, name));
    }
    row->addStretch();
    column->addWidget(group);
  }

  HostedControls& c;
  WidgetMap& widgets_;
  GridPage* page_;
  QGridLayout* grid_;
};

void BuildPlayerPage(PageBuilder& page) {
  page.AddList(page.c.lstPlayers, QObject::tr("Select &Item:"), QObject::tr("Player items"), 0);
  page.AddValueBox(kPlayerPage, 1);
}

void BuildWeaponPage(PageBuilder& page) {
  page.AddList(page.c.lstWeapInfo, QObject::tr("Select Catego&ry:"),
               QObject::tr("Weapon categories"), 0);
  page.AddList(page.c.lstWeapon, QObject::tr("Select Wea&pon:"), QObject::tr("Weapons"), 1);
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
  page.AddOptions(QObject::tr("Came&ras Destructable:"), page.c.optCamYes, page.c.optCamNo,
                  options);
  page.AddOptions(QObject::tr("Free&ze Hurt Owner:"), page.c.optFreezYes, page.c.optFreezNo,
                  options);
  options->addStretch();
  page.grid_->addLayout(options, kCaptionRow, 2, 2, 1);
}

/// A box that takes the rest of its row, and its buttons.
QHBoxLayout* RowOf(QWidget* box, std::initializer_list<QWidget*> buttons) {
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  box->setMaximumWidth(2 * kWidestColumn);
  row->addWidget(box, 1000);
  for (QWidget* button : buttons) row->addWidget(button);
  row->addStretch(1);
  return row;
}

void BuildLevelPage(PageBuilder& page) {
  auto* level = page.Make<ComboBoxView>(page.c.cboEpisode, QObject::tr("Episode and level"));
  level->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  auto* map = page.Make<TextBoxView>(page.c.txtMap, QObject::tr("Map file"));
  auto* insertMap = page.MakeButton(page.c.cmdInsert[0], QObject::tr("Insert the map file"), 'n');
  auto* browse = page.MakeButton(page.c.cmdMap, QObject::tr("Browse for a map file"), 'o');
  auto* title = page.Make<TextBoxView>(page.c.txtTitle, QObject::tr("Title"));
  auto* insertTitle = page.MakeButton(page.c.cmdInsert[1], QObject::tr("Insert the title"), 'r');
  // Below the browse button there is none.
  auto* titleRow = RowOf(title, {insertTitle});
  titleRow->insertSpacing(2, browse->sizeHint().width() + titleRow->spacing());

  QGridLayout& grid = *page.grid_;
  grid.addWidget(page.Caption(QObject::tr("E&pisode/Level"), level), kCaptionRow, 0);
  grid.addWidget(level, kBoxRow, 0);
  grid.addWidget(page.Caption(QObject::tr("&Map file"), map), kCaptionRow, 1);
  grid.addLayout(RowOf(map, {insertMap, browse}), kBoxRow, 1, 1, GridPage::kColumns);
  grid.addWidget(page.Caption(QObject::tr("T&itle"), title), kBoxRow + 2, 1);
  grid.addLayout(titleRow, kBoxRow + 3, 1, 1, GridPage::kColumns);
  grid.setRowStretch(kBoxRow, 0);
  grid.setRowMinimumHeight(kBoxRow + 1, 2);
  grid.setRowStretch(kBoxRow + 4, 1);
}

QWidget* MakeParameterPane(PageBuilder& page) {
  auto* parameters = page.Make<LabelView>(page.c.lblParams, QString());
  parameters->NameWhileEmpty(QObject::tr("Parameters"));
  parameters->setWordWrap(true);
  parameters->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  parameters->setMargin(4);
  parameters->setTextInteractionFlags(Qt::TextSelectableByMouse);
  parameters->setBackgroundRole(QPalette::Base);
  parameters->setAutoFillBackground(true);
  auto* pane = new QScrollArea(page.page_);
  pane->setWidget(parameters);
  pane->setWidgetResizable(true);
  pane->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  pane->setAccessibleName(QObject::tr("Parameters"));
  pane->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  pane->setMaximumWidth(2 * kWidestColumn);
  return pane;
}

void BuildFunctionsPage(PageBuilder& page) {
  auto* search = page.Make<TextBoxView>(page.c.txtSearch, QObject::tr("Search for a function"));
  OfferClearing(*search);
  auto* insert = page.MakeButton(page.c.cmdInsert[2], QObject::tr("Insert the function"), 'n');
  auto* edit =
      page.MakeButton(page.c.cmdAddword, QObject::tr("Add or edit words and parameters"), 'i');
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(8);
  buttons->addWidget(insert, 1);
  buttons->addWidget(edit, 1);
  auto* column = new QVBoxLayout;
  column->setSpacing(8);
  column->addWidget(search);
  column->addLayout(buttons);
  column->addStretch();
  page.grid_->addWidget(page.Caption(QObject::tr("Sea&rch:"), search), kCaptionRow, 0);
  page.grid_->addLayout(column, kBoxRow, 0);
  page.AddList(page.c.lstWords, QObject::tr("Select F&unction:"), QObject::tr("Functions"), 1);
  QWidget* parameters = MakeParameterPane(page);
  page.grid_->addWidget(page.Caption(QObject::tr("&Parameters:"), parameters), kCaptionRow, 2);
  page.grid_->addWidget(parameters, kBoxRow, 2, 1, 2);
}

}  // namespace

GridPage::GridPage(QWidget* parent) : QWidget(parent), grid_(new QGridLayout(this)) {
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setHorizontalSpacing(kColumnGap);
  grid_->setVerticalSpacing(kRowGap);
  grid_->setRowStretch(kBoxRow, 1);
  grid_->setColumnStretch(kColumns, 1);
}

void GridPage::resizeEvent(QResizeEvent*) {
  const int share = (width() - kColumns * kColumnGap) / kColumns;
  for (int column = 0; column < kColumns; ++column) {
    grid_->setColumnMinimumWidth(column, std::clamp(share, kNarrowestColumn, kWidestColumn));
  }
}

PageView::PageView(PictureBox& page, Frame& frame, QWidget* parent)
    : QWidget(parent), page_(page), frame_(frame), frameView_(new GridPage(this)) {
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
