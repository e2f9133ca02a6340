#include "standin/validate/session.h"

#include <functional>
#include <stdexcept>
#include <tuple>
#include <utility>
#include <vector>

#include "objectfile/sample_rigs.h"
#include "standin/core/witness.h"
#include "standin/panels/person.h"
#include "standin/validate/touch.h"

namespace standin::validate {

TripRig rigOf(ObjectFile object, const std::string& path) {
  if (const auto failure = writeObject(object, path)) throw std::runtime_error(failure->text);
  return {std::move(object), path};
}

TripRig lizardRig(const std::string& folder) { return rigOf(makeEverySettingRig(), folder + "/lizard.lwo"); }
TripRig japaneseRig(const std::string& folder) { return rigOf(makeBoxedDoll(), folder + "/人形.lwo"); }

Session::Session(Program program, const TripRig& rig, const std::string& module, const HostOptions& host) : path_(module) {
  if (program == Program::Modeler) {
    modeler_ = std::make_unique<PlayedModeler>(host);
    modeler_->add(rig.object, rig.path);
    modeler_->showAllLayers();
  } else {
    layout_ = std::make_unique<PlayedLayout>(host);
    layout_->select(layout_->scene().addObject(rig.object, rig.path));
  }
  refusal_ = module_.load(path_);
}

Session::~Session() {
  panels().moduleUnloaded();
  module_.unload();
}

void Session::setLocale(std::uint32_t word) {
  if (modeler_) {
    modeler_->options().localeInfo = word;
  } else {
    layout_->setLocale(word);
  }
}

void Session::setProduct(std::uint32_t word) {
  if (modeler_) {
    modeler_->options().productInfo = word;
  } else {
    layout_->setProductInfo(word);
  }
}

void Session::layAnswer(Answer answer) {
  if (modeler_ && modelerSession()->messages.answers.empty()) modeler_->answer(answer);
}

std::optional<int> Session::activate(const Tool& tool, std::optional<int> version) {
  const int wanted = version.value_or(tool.version);
  return modeler_ ? modeler_->activate(module_, tool.server, {}, wanted) : layout_->activate(module_, tool.server, wanted);
}

Panel* Session::open(const Tool& tool) {
  activate(tool);
  Panel* const panel = panels().find(tool.server);
  return panel != nullptr && panel->isOpen() ? panel : nullptr;
}

std::string Session::complaints() {
  std::string text;
  const std::vector<Fault>& faults = witness().faults();
  for (; told_ < faults.size(); ++told_) text += faults[told_].function + ": " + faults[told_].what + "\n";
  if (modeler_ && modelerSession()->edits.isOpen()) text += "a mesh edit is still open\n";
  return text;
}

bool Session::isSwitchedBack() const {
  const LayoutState& state = layout_->state();
  return state.ikEnabled && state.motionControllersEnabled && state.deformationsEnabled && state.autoConfirm == 0;
}

bool Session::reload() {
  panels().moduleUnloaded();
  module_.unload();
  refusal_ = module_.load(path_);
  return refusal_.empty();
}

std::string Session::end() {
  panels().moduleUnloaded();
  module_.unload();
  return complaints();
}

std::string everythingShown(Panel& panel) {
  std::string all;
  everyPage(panel, [&](const std::string& page) {
    for (const auto& control : panel.controls) {
      if (!isVisible(*control) || control->is(ControlKind::TabChoice) || control->kind->value == ValueForm::None) continue;
      all += page + control->describe() + " = " + control->shown() + "\n";
    }
  });
  return all;
}

}  // namespace standin::validate
