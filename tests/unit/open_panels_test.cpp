// The open panels and how they hear of changes.
#include "modeler/shared/open_panels.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace mst {
namespace {

// Writes down what it hears, and does what the test wants of it.
class Panel {
 public:
  Panel(std::string name, std::vector<std::string>& heard) : name_(std::move(name)), heard_(heard) { enter(); }
  ~Panel() { removePanel(this); }
  Panel(const Panel&) = delete;
  Panel& operator=(const Panel&) = delete;

  void enter() { enterPanel(this, hear); }
  std::function<void()> reaction = [] {};

 private:
  static void hear(void* user, PanelNews news) {
    auto& panel = *static_cast<Panel*>(user);
    panel.heard_.push_back(panel.name_ + " " + std::to_string(static_cast<int>(news)));
    panel.reaction();
  }

  std::string name_;
  std::vector<std::string>& heard_;
};

class OpenPanels : public testing::Test {
 protected:
  using Heard = std::vector<std::string>;
  Heard heard;
  Panel a{"a", heard}, b{"b", heard}, c{"c", heard};
};

TEST_F(OpenPanels, HearInListOrderWithTheCode) {
  NotifyPanels(nullptr, PanelNews::NamesChanged);
  NotifyPanels(nullptr, PanelNews::PropertiesChanged);
  EXPECT_EQ(heard, (Heard{"a 1", "b 1", "c 1", "a 2", "b 2", "c 2"}));
}

TEST_F(OpenPanels, TheSenderHearsNothing) {
  NotifyPanels(&b, PanelNews::SelectionChanged);
  EXPECT_EQ(heard, (Heard{"a 5", "c 5"}));
}

TEST_F(OpenPanels, APanelEnteredAgainIsThereOnceAtItsPlace) {
  a.enter();
  NotifyPanels(nullptr, PanelNews::Refresh);
  EXPECT_EQ(heard, (Heard{"a 0", "b 0", "c 0"}));
}

TEST_F(OpenPanels, ARemovedPanelHearsNothing) {
  removePanel(&a);
  removePanel(&a);
  NotifyPanels(nullptr, PanelNews::Refresh);
  EXPECT_EQ(heard, (Heard{"b 0", "c 0"}));
}

TEST_F(OpenPanels, WhatACallbackTellsIsHeardByNobody) {
  a.reaction = [this] { NotifyPanels(&a, PanelNews::SelectionChanged); };
  NotifyPanels(nullptr, PanelNews::NamesChanged);
  EXPECT_EQ(heard, (Heard{"a 1", "b 1", "c 1"}));
}

TEST_F(OpenPanels, AfterAWalkTheNextOneIsHeard) {
  NotifyPanels(&c, PanelNews::NamesChanged);
  heard.clear();
  NotifyPanels(&a, PanelNews::SelectionChanged);
  EXPECT_EQ(heard, (Heard{"b 5", "c 5"}));
}

TEST_F(OpenPanels, APanelRemovedWithinAWalkIsPassedOver) {
  a.reaction = [this] { removePanel(&b); };
  NotifyPanels(nullptr, PanelNews::Refresh);
  EXPECT_EQ(heard, (Heard{"a 0", "c 0"}));
}

TEST_F(OpenPanels, ACallbackThatThrowsKeepsNobodyFromHearing) {
  a.reaction = [] { throw std::runtime_error("no mesh"); };
  NotifyPanels(nullptr, PanelNews::Refresh);
  NotifyPanels(&a, PanelNews::NamesChanged);
  EXPECT_EQ(heard, (Heard{"a 0", "b 0", "c 0", "b 1", "c 1"}));
}

}  // namespace
}  // namespace mst
