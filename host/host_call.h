// The host's calls into the module, as they are nested.
//
// From the host's call into the module to its return nothing but the module acts: what it finds out about the mesh serves
// until then. The guard around everything that the host calls marks where a call begins and ends.
#pragma once

namespace lw {

// A call of the host's that the module is within. What was found is forgotten when the outermost one ends.
class CHostCall {
 public:
  CHostCall() noexcept;
  ~CHostCall();
  CHostCall(const CHostCall&) = delete;
  CHostCall& operator=(const CHostCall&) = delete;

  static bool isRunning() noexcept;
};

// The user's turn within a call of the host's: a question is on the screen. Nothing that was found before holds then or
// after it, and a call that comes meanwhile is an outermost one.
class CUsersTurn {
 public:
  CUsersTurn() noexcept;
  ~CUsersTurn();
  CUsersTurn(const CUsersTurn&) = delete;
  CUsersTurn& operator=(const CUsersTurn&) = delete;

 private:
  int depth_;
};

}  // namespace lw
