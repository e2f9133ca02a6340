// "Info Messages 4": what the module tells and asks the user, and the answers that a test laid ready.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace standin {

enum class MessageKind { Error, YesNo };

// What the user presses.
enum class Answer { No, Yes };

struct Message {
  MessageKind kind = MessageKind::Error;
  std::string title;  // of questions
  std::string first;
  std::string second;
  Answer answer = Answer::No;  // to questions
};

struct MessageDesk {
  std::vector<Message> shown;
  // For the questions to come. A question without an answer laid ready is a fault and is answered with no.
  std::deque<Answer> answers;
  // A person in front of the screen: sees every message, and answers the questions without an answer laid ready. May be
  // empty.
  std::function<Answer(const Message&)> person;
};

}  // namespace standin
