#include <algorithm>
#include <array>
#include <utility>

#include "standin/validate/touch.h"
#include "standin/validate/tries.h"

namespace standin::validate {
namespace {

constexpr std::uint8_t kFalloffSetting = 13;
constexpr int kInverseDistance4 = 2;  // place in the list

// Places in the property panel, in order of creation, and its last page.
enum PropertyControl : std::uint8_t {
  kPageTabs = 5,
  kGroupTabs = 6,
  kNameField = 7,
  kFalloff = 10,
  kMapField = 15,
  kMapChooser = 16,
  kStrength = 20,
  kRangeGreatest = 24,
  kParentField = 47,
  kParentChooser = 48,
  kXLeast = 103,
  kHeadingLeast = 137
};
constexpr int kLastPage = 3;

// The property panel in the hands of somebody who tries what hosts may differ in.
class PropertyUser {
 public:
  PropertyUser(Session& session, std::uint32_t language, std::string skelegon)
      : session_(session), language_(language), name_(std::move(skelegon)) {}

  std::vector<std::string> tryAll() {
    session_.modeler()->select({name_});
    open();
    typeWideNumbers();
    chooseFromMenus();
    leaveOddChoiceAlone();
    runAgain();
    changeLanguage();
    return user_.troubles();
  }

 private:
  struct Number {
    int page;
    int group;
    PropertyControl control;
    const char* typed;
    std::uint8_t slot;
    const char* stored;
  };

  void open() {
    panel_ = session_.open(kProperty);
    user_.finds(panel_ != nullptr, "the property panel opens again");
  }
  Control* at(int control) const { return panel_ == nullptr ? nullptr : panel_->at(control); }
  const MeshPolygon* skelegon() const { return session_.modeler()->current()->skelegon(name_); }
  std::string stored(std::uint32_t type) const { return skelegon() == nullptr ? "no skelegon" : skelegon()->tag(type); }
  void show(int page, int group = 0) {
    user_.does(person::choose(at(kPageTabs), page));
    if (page == kLastPage) user_.does(person::choose(at(kGroupTabs), group));
  }
  void isStored(std::uint32_t type, const std::string& text, const std::string& what) {
    user_.finds(stored(type) == text, what + ": \"" + stored(type) + "\" instead of \"" + text + '"');
  }

  void typeWideNumbers() {
    static constexpr std::array kNumbers{
        Number{1, 0, kStrength, "250", 31, "250.000000"},
        Number{1, 0, kRangeGreatest, "150", 35, "150.000000"},
        Number{3, 0, kXLeast, "-3.5", 78, "-3.500000"},
        Number{3, 1, kHeadingLeast, "-90", 97, "-1.570796"},
    };
    for (const Number& number : kNumbers) {
      show(number.page, number.group);
      user_.does(person::type(at(number.control), number.typed));
      isStored(settingTag(number.slot), number.stored, "a typed number is stored");
    }
  }

  // "(none)" before anything else was chosen, then each of some entries twice, then "(none)" again.
  void chooseFromMenus() {
    constexpr std::uint8_t kActive = 27;
    constexpr std::uint8_t kParent = 51;
    constexpr int kSome = 3;
    show(1);
    user_.does(person::type(at(kMapField), "typed"));
    for (int i = 0; i < 2; ++i) {
      user_.does(person::choose(at(kMapChooser), 0));
      isStored(lw::kTagBoneWeight, "", "no weight map can be chosen");
      isStored(settingTag(kActive), "0", "a bone without a weight map is inactive");
      user_.does(person::type(at(kMapField), "typed"));
    }
    show(2);
    const std::vector<std::string> items = person::menu(at(kParentChooser));
    for (int i = 0; i < kSome * 2 && std::cmp_less(i / 2, items.size()); ++i) {
      user_.does(person::type(at(kParentField), "typed"));
      user_.does(person::choose(at(kParentChooser), i / 2));
      isStored(settingTag(kParent), i / 2 == 0 ? "" : items[static_cast<std::size_t>(i / 2)], "a parent can be chosen");
    }
    user_.does(person::choose(at(kParentChooser), 0));
    isStored(settingTag(kParent), "", "no parent can be chosen");
  }

  void leaveOddChoiceAlone() {
    for (const char* const odd : {"99", "-1"}) {
      if (skelegon() == nullptr) return;
      session_.modeler()->current()->setTag(*skelegon(), settingTag(kFalloffSetting), odd);
      open();
      if (panel_ == nullptr) return;
      everyPage(*panel_,
                [&](const std::string& page) { user_.finds(layoutFaults(*panel_).empty(), page + layoutFaults(*panel_)); });
      isStored(settingTag(kFalloffSetting), odd, "a stored choice outside its list stays");
      const int shown = panel_->at(kFalloff)->integer;
      user_.finds(shown >= 0 && std::cmp_less(shown, panel_->at(kFalloff)->items().size()),
                  "a list is given an index that it has");
    }
    show(0);
    user_.does(person::choose(at(kFalloff), kInverseDistance4));
    isStored(settingTag(kFalloffSetting), std::to_string(kInverseDistance4), "the choice takes its place");
  }

  void runAgain() {
    for (int i = 0; i < 2; ++i) open();
    const auto all = panels().all();
    user_.finds(std::count_if(all.begin(), all.end(),
                              [](const Panel* panel) { return panel->titleAtCreation.starts_with(kProperty.server); }) == 1,
                "a run while the panel is open leaves one panel");
    user_.finds(at(kNameField) != nullptr && at(kNameField)->text == name_, "it shows the selected skelegon");
  }

  void changeLanguage() {
    const std::string before = labels();
    session_.setLocale(otherLanguage(language_));
    open();
    user_.finds(labels() != before, "a run while the panel is open speaks the language of that run");
    user_.does(person::close(panel_));
    session_.setLocale(language_);
    open();
    user_.finds(labels() == before, "the next run speaks the first language again");
  }
  std::string labels() const {
    std::string all;
    if (panel_ == nullptr) return all;
    for (const auto& control : panel_->controls) all += control->label.read() + '\n';
    return all;
  }

  Session& session_;
  std::uint32_t language_;
  Tries user_;
  std::string name_;
  Panel* panel_ = nullptr;
};

}  // namespace

std::vector<std::string> tryProperty(Session& session, std::uint32_t language) {
  const std::vector<std::string> selected = session.modeler()->selectedNames();
  if (selected.empty()) return {"no skelegon is selected"};
  return PropertyUser(session, language, selected.front()).tryAll();
}

}  // namespace standin::validate
