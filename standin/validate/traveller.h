// The user of a trip. Whatever they cannot do, or find wrong, is noted and the trip goes on.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "standin/validate/tries.h"
#include "standin/validate/trips.h"

namespace standin::validate {

class Traveller : public Tries {
 public:
  Traveller(const TripOrder& order, Program program);

  Session& session() { return session_; }
  bool isReady() const { return report_.broken.empty(); }

  void begin() const;
  void end();

  // A call that gives nothing back was dropped: no module can know, so the panel may be wrong until it is made anew.
  bool wasDeceived() const;

  void mustHold(bool holds, const std::string& rule);

  // Whatever failed, the next run of the property tool shows what is stored, as a module that was never disturbed does.
  void judgeNextRun();
  TripReport finish();

 private:
  const std::string& freshView();
  std::string notOfDeception(const std::string& complaints) const;

  const TripOrder& order_;
  Session session_;
  TripReport report_;
  std::string refused_;
};

// Has the conversion convert an object that was saved, in Layout, and adds to the report what its user finds there.
void convertSaved(const TripOrder& order, const std::string& saved, TripReport& report,
                  const std::function<void(Traveller& user, Scene& scene)>& look);

// The first names of the skelegons, in scan order.
std::vector<std::string> skelegonNames(Session& session, std::size_t most);

// Everything that is stored on the skelegons, and which are selected.
std::string meshText(Session& session);

}  // namespace standin::validate
