// What is found out about a host: facts, each of which answers one open question, and figures for people to read.
#pragma once

#include <string>
#include <vector>

namespace probe {

// The answer to an open question: the name that the answer has in the table of open questions, and what was seen.
struct Answer {
  std::string value;  // empty: not told
  std::string seen;   // a sentence; of what is not told, why
};

inline constexpr const char* kOther = "other";

Answer told(std::string value, std::string seen);
// An answer that the table does not know.
Answer other(std::string seen);
Answer notTold(std::string why);

struct Fact {
  std::string name;
  Answer answer;
};

struct Figure {
  std::string name;
  std::string seen;
};

// In the order in which they were told.
class Facts {
 public:
  // The later answer to one question counts, at the place of the first.
  void tell(const std::string& name, Answer answer);
  void figure(std::string name, std::string seen);

  // What was told of it so far; not told where nothing was.
  Answer answerTo(const std::string& name) const;
  const std::vector<Fact>& facts() const { return facts_; }
  const std::vector<Figure>& figures() const { return figures_; }

 private:
  std::vector<Fact> facts_;
  std::vector<Figure> figures_;
};

}  // namespace probe
