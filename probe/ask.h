// Questions to the host, as tables: each is asked for itself, and what goes wrong with one leaves the others.
#pragma once

#include <exception>
#include <span>
#include <string>
#include <utility>

#include "probe/facts.h"
#include "probe/trouble.h"

namespace probe {

// A site is what the questions of one area are asked on: a mesh with its edits, a scene, a panel.
template <class Site>
struct Question {
  const char* name;  // of the fact that answers it
  Answer (*measure)(Site&);
};

// What the action answers; where it throws, nothing is told, and why.
template <class Action>
Answer answerOf(Action&& action) {
  try {
    return std::forward<Action>(action)();
  } catch (const Trouble& trouble) {
    return notTold(trouble.why);
  } catch (const std::exception& failure) {
    return notTold(std::string("the probe failed: ") + failure.what());
  }
}

// Why the action failed; empty when it did not.
template <class Action>
std::string troubleOf(Action&& action) {
  return answerOf([&] {
           action();
           return Answer{};
         })
      .seen;
}

// The sentence that the action gives; where it throws, why.
template <class Action>
std::string sentenceOf(Action&& action) {
  return answerOf([&] { return Answer{{}, action()}; }).seen;
}

template <class Site>
void ask(std::span<const Question<Site>> questions, Site& site, Facts& facts) {
  for (const Question<Site>& question : questions) {
    facts.tell(question.name, answerOf([&] { return question.measure(site); }));
  }
}

}  // namespace probe
