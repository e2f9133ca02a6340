// The stand-in Layout as a module meets it: the services by name, the scene behind them, and how a session begins and ends.
//
//   LayoutHost host;
//   const auto items = host.loadObject("biped.lwo");
//   ModuleFile module;  // load(...)
//   host.activate(module, "Some:Server");
//   ... press buttons of panels ...
//   std::cout << host.transcript().text() << sceneReport(host.scene());
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "interface/lightwave.h"
#include "standin/core/module_file.h"
#include "standin/layout/host_text.h"
#include "standin/layout/layout_state.h"
#include "standin/layout/options.h"

namespace standin {

inline constexpr std::uint32_t kProductInfo = 0x08F00641;  // the full product, build 100, 15.0, model year 2023
inline constexpr std::uint32_t kLocaleEnglish = 0x409;
inline constexpr std::uint32_t kLocaleJapanese = 0x411;

// A record that describes the moment it was asked for. Asking again gives a fresh one and spoils the one before.
template <class Record>
class MomentRecords {
 public:
  // `oneOnly`: it is one record, which is filled anew.
  explicit MomentRecords(bool oneOnly) : oneOnly_(oneOnly) {}

  // The record to fill; `spoil` is called with the one before.
  template <class Spoil>
  Record& next(Spoil&& spoil) {
    if (oneOnly_) return records_[current_];
    spoil(records_[current_]);
    current_ = (current_ + 1) % records_.size();
    return records_[current_];
  }

 private:
  std::array<Record, 64> records_{};
  std::size_t current_ = 0;
  bool oneOnly_;
};

struct InterfaceRecord {
  lw::LWInterfaceInfo info{};
  std::vector<lw::ItemId> selection;
};

// One at a time: the services are plain functions and speak to the host that was made last.
class LayoutHost {
 public:
  // Begins a new session: the witness and the globals are reset, every service that Layout offers is there.
  explicit LayoutHost(const LayoutOptions& options = {});
  ~LayoutHost();
  LayoutHost(const LayoutHost&) = delete;
  LayoutHost& operator=(const LayoutHost&) = delete;

  // The host that the services speak to. Only while there is one.
  static LayoutHost& current();

  LayoutState& state() { return state_; }
  Scene& scene() { return state_.scene; }
  const Scene& scene() const { return state_.scene; }
  const Transcript& transcript() const { return state_.transcript; }
  HostTexts& texts() { return texts_; }

  void setProductInfo(std::uint32_t word);
  void setLocale(std::uint32_t language);
  void setTime(double seconds) { state_.time = seconds; }

  // Loads an object file (a UTF-8 path), one item for each layer. Empty, with a sentence in `why`, when it cannot be read.
  std::vector<Item*> loadObject(const std::string& path, std::string* why = nullptr);
  void select(const std::vector<Item*>& items);

  // Runs a command as a person at the host would.
  bool command(std::string_view utf8);

  // Activates one of the module's servers for Layout. The local data are freed when the activation returns.
  std::optional<int> activate(ModuleFile& module, std::string_view server, int version = lw::kLayoutGenericVersion);

  // For the services.
  void* freshInterfaceInfo();
  void* freshTimeInfo();

 private:
  LayoutState state_;
  HostTexts texts_;
  MomentRecords<InterfaceRecord> interfaceRecords_;
  MomentRecords<lw::LWTimeInfo> timeRecords_;
};

}  // namespace standin
