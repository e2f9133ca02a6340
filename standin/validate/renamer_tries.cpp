#include <algorithm>

#include "standin/validate/panel_places.h"
#include "standin/validate/touch.h"
#include "standin/validate/tries.h"

namespace standin::validate {
namespace {

// Letters of another script than the Latin one.
bool isJapanese(const std::string& text) {
  return std::any_of(text.begin(), text.end(), [](char byte) { return static_cast<unsigned char>(byte) >= 0x80; });
}

}  // namespace

// The host's language changes: an open panel keeps its own in all that it says, a closed one takes the new one with all
// values.
std::vector<std::string> tryRenamer(Session& session, std::uint32_t language, const Panel& first) {
  Tries user;
  const bool wasJapanese = language == kJapanese;
  const Panel* panel = &first;
  const auto complaint = [&] {
    user.does(person::press(panel->at(kRun)));
    const auto& messages = session.modeler()->messages();
    return messages.empty() ? std::string() : messages.back().first;
  };
  const auto shown = [&] {
    std::string values;
    for (const auto& control : panel->controls) values += std::to_string(control->integer) + control->text + '\n';
    return values;
  };
  user.does(person::press(panel->at(kClear)));
  user.does(person::type(panel->at(kBaseText), "Knochen_骨"));
  const std::string values = shown();
  session.setLocale(otherLanguage(language));
  user.finds(session.open(kRenamer) == panel && isJapanese(panel->at(kMode)->label.read()) == wasJapanese,
             "an open renamer stays in its language");
  user.finds(isJapanese(complaint()) == wasJapanese, "an open renamer complains in its language");
  user.does(person::close(panels().find(kRenamer.server)));
  panel = session.open(kRenamer);
  user.finds(panel != nullptr, "the renamer opens again");
  if (panel == nullptr) return user.troubles();
  user.finds(isJapanese(panel->at(kMode)->label.read()) != wasJapanese, "a renamer opened again speaks the host's language");
  user.finds(isJapanese(complaint()) != wasJapanese, "and complains in it");
  user.finds(shown() == values, "the renamer keeps its values: " + shown() + " instead of " + values);
  user.finds(layoutFaults(*panel).empty(), "the renamer is clearly laid out");
  session.setLocale(language);
  return user.troubles();
}

}  // namespace standin::validate
