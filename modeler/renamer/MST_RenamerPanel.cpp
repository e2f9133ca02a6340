#include "modeler/renamer/MST_RenamerPanel.h"

#include <optional>
#include <unordered_set>
#include <utility>

#include "host/lwtool2_errors.h"
#include "host/lwtool2_eval.h"
#include "host/lwtool2_globals.h"
#include "host/lwtool2_messages.h"
#include "host/raised_flag.h"
#include "modeler/shared/tool_names.h"
#include "texts/whole_text.h"

namespace mst {
namespace {

constexpr const char* kReplaceFromDefault = "_L_";
constexpr const char* kReplaceToDefault = "_R_";
constexpr const char* kRegexPatternDefault = "(.*)_L(.*)";
constexpr const char* kRegexFormatDefault = "$1_R$2";

// The modes that share the remembered text.
bool usesChangeText(RenameMode mode) {
  return mode == RenameMode::Change || mode == RenameMode::Prefix || mode == RenameMode::Suffix;
}

}  // namespace

RenamerPanel::RenamerPanel() { enterPanel(this, &OnNews); }

RenamerPanel::~RenamerPanel() {
  removePanel(this);
  if (form_) form_->release();
}

// ---------------------------------------------------------------------------------------------------------------------
// Opening

bool RenamerPanel::OpenRenamerPanel() {
  if (life_.isOpen()) {
    form_->bringToFront();
    return true;
  }
  if (life_.mayBeOpen()) {
    form_->close();
    life_.closed();
  }
  // A panel whose event the host is waiting for has to stay.
  if (!form_ || (!isInPresentLanguage() && !isBusy_)) build();
  life_.open([&] { return form_->open(); });
  if (life_.mayBeOpen()) form_->takeSize(mode_);  // the host may have chosen one of its own
  return life_.isOpen();
}

void RenamerPanel::build() {
  if (!form_) title_ = lw::FormatString("%s(%d.%02d)%s", kRenamerName, VARNEL_VERSION_MAJOR, VARNEL_VERSION_MINOR, " ");
  auto form =
      std::make_unique<CRenamerForm>(title_.c_str(), lw::renamerTexts(), RenamerHooks{&OnUsed, &OnOpened, &OnClosed, this});
  if (form_) {
    form->takeValues(form_->values());
    form->lookLike(mode_, false);
  }
  form_ = std::move(form);  // a panel that the host refused leaves the former one, with all that is in it
  made_ = lw::renamerTexts();
}

void RenamerPanel::complain(const RenameResult& result) const {
  // A title stands before each text; the host's error message has no place for one.
  const auto text = [&](texts::RenamerMessage which) { return (*made_.messages)[static_cast<std::size_t>(which) + 1]; };
  switch (result.outcome) {
    case RenameOutcome::Renamed: break;
    case RenameOutcome::NoSkelegons: return lw::ShowError(text(texts::RenamerMessage::NoSelection));
    case RenameOutcome::DuplicatedNames: return lw::ShowError(text(texts::RenamerMessage::DuplicatedNames));
    case RenameOutcome::InvalidPattern: return lw::ShowError(result.complaint.c_str());
    case RenameOutcome::RefusedName: {
      constexpr std::size_t kLongestShown = 120;
      const std::string skelegon(texts::cutAtCharacter(result.refused.skelegon, kLongestShown));
      const char* const why = (*made_.refusals)[static_cast<std::size_t>(result.refused.why)];
      return lw::ShowError(lw::FormatString("%s (%s)", why, skelegon.c_str()).c_str());
    }
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// What the user does

void RenamerPanel::use(const lw::LWControl* control) {
  if (form_->owns(RenamerItem::Mode, control)) return chooseMode();
  if (form_->owns(RenamerItem::Add, control)) return add();
  if (form_->owns(RenamerItem::Clear, control)) return clear();
  if (form_->owns(RenamerItem::Run, control)) return run();
}

// What the list of modes shows; the present mode where that is none.
RenameMode RenamerPanel::chosenMode() const {
  const int number = form_->number(RenamerItem::Mode);
  const bool isMode = number >= 0 && number <= static_cast<int>(RenameMode::Advanced);
  return isMode ? static_cast<RenameMode>(number) : mode_;
}

// A mode that is chosen again keeps the texts that were typed.
void RenamerPanel::chooseMode() {
  const RenameMode mode = chosenMode();
  if (mode == mode_) return;
  if (usesChangeText(mode_)) changeText_ = form_->text(RenamerItem::FirstText);
  mode_ = mode;
  if (usesChangeText(mode)) form_->setText(RenamerItem::FirstText, changeText_, life_.mayBeOpen());
  if (mode == RenameMode::Replace) showTexts(kReplaceFromDefault, kReplaceToDefault);
  if (mode == RenameMode::RegularExpression) showTexts(kRegexPatternDefault, kRegexFormatDefault);
  form_->lookLike(mode, life_.mayBeOpen());
}

void RenamerPanel::showTexts(const char* first, const char* second) {
  form_->setText(RenamerItem::FirstText, first, life_.mayBeOpen());
  form_->setText(RenamerItem::SecondText, second, life_.mayBeOpen());
}

void RenamerPanel::add() {
  std::unordered_set<lw::PolygonId> known(registered_.begin(), registered_.end());
  for (const lw::PolygonId polygon : selectedForRenaming()) {
    if (known.insert(polygon).second) registered_.push_back(polygon);
  }
  showRegistered();
}

void RenamerPanel::clear() {
  registered_.clear();
  showRegistered();
}

void RenamerPanel::showRegistered() {
  form_->setNumber(RenamerItem::RegisteredCount, static_cast<int>(registered_.size()), life_.mayBeOpen());
}

// The others are told of an advanced run whatever came of it, of a simple one only when it renamed. The difference is kept
// on purpose.
void RenamerPanel::run() {
  const RenameMode mode = chosenMode();
  const bool withProperties = form_->number(RenamerItem::BoneProperty) != 0;
  // None: a call of the host's failed, and nothing was renamed.
  const std::optional<RenameResult> result =
      lw::guarded([&] { return std::optional(runPass(mode)); }, std::optional<RenameResult>());
  if (result) complain(*result);
  const bool done = result && result->outcome == RenameOutcome::Renamed;
  if (!isSimple(mode) || done) {
    NotifyPanels(this, PanelNews::NamesChanged);
    if (withProperties) NotifyPanels(this, PanelNews::PropertiesChanged);
  }
  if (done && life_.mayBeOpen()) form_->redraw();
}

RenameResult RenamerPanel::runPass(RenameMode mode) const {
  if (!isSimple(mode)) return runAdvancedPass(form_->settings(), registered_);
  return runSimplePass(mode, form_->text(RenamerItem::FirstText), form_->text(RenamerItem::SecondText),
                       form_->number(RenamerItem::BoneProperty) != 0);
}

// ---------------------------------------------------------------------------------------------------------------------
// Called by the host and by other panels

void RenamerPanel::OnUsed(lw::LWControl* control, void* user) {
  lw::onTool<RenamerPanel>(user, [&](RenamerPanel& panel) {
    if (!panel.life_.mayBeOpen() || panel.form_->isSetting()) return;
    const lw::CRaisedFlag busy(panel.isBusy_);
    panel.use(control);
  });
}

void RenamerPanel::OnOpened(lw::PanelId id, void* user) {
  lw::onTool<RenamerPanel>(user, [&](RenamerPanel& panel) {
    if (panel.isPanel(id) && panel.life_.opened()) panel.form_->takeSize(panel.mode_);
  });
}

void RenamerPanel::OnClosed(lw::PanelId id, void* user) {
  lw::onTool<RenamerPanel>(user, [&](RenamerPanel& panel) {
    if (panel.isPanel(id)) panel.life_.closed();
  });
}

void RenamerPanel::OnNews(void* user, PanelNews /*news*/) {
  lw::onTool<RenamerPanel>(user, [&](RenamerPanel& panel) {
    if (panel.life_.mayBeOpen()) panel.showRegistered();
  });
}

}  // namespace mst
