#include "standin/panels/limits.h"

#include <algorithm>

#include "standin/panels/units.h"

namespace standin {
namespace {

bool isLimited(const Control& field) {
  if (field.kind->handling != Handling::Slide || (field.rangeLeast == 0 && field.rangeGreatest == 0)) return false;
  const PanelOptions& options = panels().options;
  return field.is(ControlKind::MiniSlider) ? options.slidersLimitTyped : options.limitsTypedValues;
}

double valueOfBound(const Control& field, int bound) {
  return panels().options.rangesInValueUnit ? bound : valueOfShown(field.kind->kind, bound);
}

}  // namespace

double limitedWhenTyped(const Control& field, double value) {
  if (!isLimited(field)) return value;
  return std::clamp(value, valueOfBound(field, field.rangeLeast), valueOfBound(field, field.rangeGreatest));
}

double limitedWhenSet(const Control& field, double value) {
  return panels().options.limitsSetValues ? limitedWhenTyped(field, value) : value;
}

std::string heldText(std::string_view text) {
  const std::size_t most = panels().options.longestText;
  return std::string(most == 0 ? text : text.substr(0, most));
}

}  // namespace standin
