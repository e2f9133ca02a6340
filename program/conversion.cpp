#include "program/conversion.h"

namespace standin {

std::vector<CommandOption> conversionOptions(ConversionOptions& options, const std::string& languageOfWhat) {
  return {
      moduleOption(options.module),
      hostOption(options.host),
      languageOption(&options.language, languageOfWhat),
      {"--no-skelegons", &options.noSkelegons, "Switch the option for making bones off"},
      {"--no-pivot", &options.noPivot, "Switch the option for recording the pivot rotation off"},
  };
}

Conversion::Conversion(const std::string& file, const ConversionOptions& options, Progress& progress)
    : options_(options), name_(fileNameOf(file)), host_(options.host.options()) {
  host_.setLocale(localeOf(options.language));
  progress.tell(name_ + ": reading");
  std::string why;
  const std::vector<Item*> items = host_.loadObject(file, &why);
  progress.clear();
  if (items.empty()) throw Trouble{why.empty() ? file + ": the object has no layer" : why};
  host_.select(items);
}

const Panel& Conversion::open() {
  loadModule(module_, options_.module);
  const Panel& panel = openTool(host_, module_, kConversionTool);
  if (options_.noSkelegons) must(person::switchTo(panel.find(ControlKind::Bool, 0), false));
  if (options_.noPivot) must(person::switchTo(panel.find(ControlKind::Bool, 1), false));
  panel_ = &panel;
  return panel;
}

ConversionVerdict Conversion::run(Progress& progress) {
  const ConversionWatch watch(host_, [&](double fraction) { progress.tell(name_ + ": converting", fraction); });
  progress.tell(name_ + ": converting");
  const Done pressed = person::press(panel_->find(ControlKind::Button, 0));
  progress.clear();
  must(pressed);
  return watch.verdict();
}

void Conversion::end() { endSession(module_); }

}  // namespace standin
