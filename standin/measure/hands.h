// What the probe asks a person to do by hand, done.
#pragma once

#include "standin/panels/person.h"

namespace standin {

// Throws std::runtime_error when it could not be done.
void mustBeDone(const Done& done);

// Goes through the panels that the probe shows one after the other. Throws std::runtime_error where that cannot be done.
void playHands();

}  // namespace standin
