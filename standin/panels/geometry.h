// Judges the layout of a panel as a person sees it: what overlaps, what leaves the panel, what is cut.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "standin/panels/panel.h"

namespace standin {

using ControlPair = std::pair<const Control*, const Control*>;

// Pairs of visible controls whose labels or hot areas share pixels, in order of creation. Borders frame others and do not
// count, but two borders that cut each other do.
std::vector<ControlPair> overlapping(const Panel& panel);

// Visible controls that are only partly inside the panel.
std::vector<const Control*> leaving(const Panel& panel);

// Visible controls whose text has not enough room: a label left of the panel, a button narrower than its label, tabs
// narrower than their items, a popup narrower than the longest item of its fixed list.
std::vector<const Control*> cut(const Panel& panel);

// Controls that are shown but lie wholly outside the panel, where nobody sees them.
std::vector<const Control*> outside(const Panel& panel);

// The first three as lines of text; empty when the layout is sound.
std::string layoutComplaints(const Panel& panel);

}  // namespace standin
