// What became of a conversion, told from what Layout saw of it: the commands that it was sent and what it made of them, the
// texts on its status line, its bones before and after. Nothing here knows how the module works.
#pragma once

#include <cstddef>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "standin/layout/layout_host.h"

namespace standin {

struct ConversionVerdict {
  // Equal things, counted.
  struct Counted {
    std::string text;
    std::string why;  // of a refused command
    std::size_t count = 0;
  };
  struct PassedOver {
    std::string item;
    std::string why;
    bool isNormal = false;  // there was nothing to convert
  };

  std::size_t objects = 0;
  std::size_t converted = 0;  // those that got bones
  std::size_t bones = 0;      // that they got
  std::size_t set = 0;        // bones that got all that was sent to them
  std::vector<std::string> partlySet;
  std::vector<std::string> notSet;
  std::vector<Counted> refused;   // commands by name and reason
  std::vector<Counted> failures;  // texts on the status line, without those that only repeat a refused command
  std::vector<PassedOver> passedOver;
  bool wasCutOff = false;  // the tool never said that it is done

  bool isSound() const;
};

// A paragraph of lines, the first of which says whether all went well.
std::string verdictText(const ConversionVerdict& verdict);

// Looks on while the conversion runs on the selected objects. One at a time on a host; the transcript has to be recorded.
class ConversionWatch {
 public:
  // `told` is called with each step of the tool's progress bar.
  explicit ConversionWatch(LayoutHost& host, std::function<void(double fraction)> told = {});
  ~ConversionWatch();
  ConversionWatch(const ConversionWatch&) = delete;
  ConversionWatch& operator=(const ConversionWatch&) = delete;

  // After the run.
  ConversionVerdict verdict() const;

 private:
  struct Object {
    Item* item = nullptr;
    std::size_t bonesBefore = 0;
    bool hasSkelegons = false;
  };

  void look(const LayoutState& state, std::string_view command);
  void lookAtStatus(const Event& status);
  void judgeObjects(ConversionVerdict& verdict) const;
  void judgeEvents(ConversionVerdict& verdict) const;

  LayoutHost& host_;
  std::function<void(double)> told_;
  std::vector<Object> objects_;
  std::size_t firstEvent_;
  const Item* bone_ = nullptr;      // whose settings are being sent
  std::set<const Item*> begun_;     // bones that were sent settings
  std::set<const Item*> troubled_;  // those of them with a failure on the way
};

}  // namespace standin
