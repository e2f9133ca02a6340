// How the values of the rows set a host's options: set<&P::openHook, OpenHook::Later, &P::openAnswer, 0>.
#pragma once

#include "standin/variants/variants.h"

namespace standin {

using G = ProgramOptions;
using P = PanelOptions;
using M = ModelerOptions;
using L = LayoutOptions;

template <class T>
G& optionsOf(HostOptions& host, T G::* /*option*/) {
  return host.program;
}
template <class T>
P& optionsOf(HostOptions& host, T P::* /*option*/) {
  return host.panels;
}
template <class T>
M& optionsOf(HostOptions& host, T M::* /*option*/) {
  return host.modeler;
}
template <class T>
L& optionsOf(HostOptions& host, T L::* /*option*/) {
  return host.layout;
}

template <auto Option, auto Value, auto... More>
void set(HostOptions& host) {
  optionsOf(host, Option).*Option = Value;
  if constexpr (sizeof...(More) > 0) set<More...>(host);
}

}  // namespace standin
