#include "program/run_program.h"

#include <cerrno>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <iostream>
#include <new>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <system_error>

#include "program/rig_tool_support.h"

namespace standin {
namespace {

// Takes the place of std::cout's own buffer, which forgets why something could not be written. What is written goes to the
// C library's standard output as before, so that lines on a terminal appear as they are made.
class StandardOutput : public std::streambuf {
 public:
  StandardOutput() : before_(std::cout.rdbuf(this)) {}
  ~StandardOutput() override { std::cout.rdbuf(before_); }
  StandardOutput(const StandardOutput&) = delete;
  StandardOutput& operator=(const StandardOutput&) = delete;

  // Why not all has been written, in the system's words; empty when all has.
  std::string failure() {
    sync();
    return error_ == 0 ? std::string() : std::generic_category().message(error_);
  }

 protected:
  int_type overflow(int_type c) override {
    if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
    const char one = traits_type::to_char_type(c);
    return xsputn(&one, 1) == 1 ? c : traits_type::eof();
  }
  std::streamsize xsputn(const char* text, std::streamsize size) override {
    errno = 0;
    const std::size_t written = std::fwrite(text, 1, static_cast<std::size_t>(size), stdout);
    if (written != static_cast<std::size_t>(size)) keepError();
    return static_cast<std::streamsize>(written);
  }
  int sync() override {
    errno = 0;
    if (std::fflush(stdout) == 0) return 0;
    keepError();
    return -1;
  }

 private:
  // The first one tells why; what follows only repeats that the stream is broken.
  void keepError() {
    if (error_ == 0) error_ = errno != 0 ? errno : EIO;
  }

  std::streambuf* before_;
  int error_ = 0;
};

// Of the exception that is being handled.
std::string whatEndedIt() {
  try {
    throw;
  } catch (const Trouble& trouble) {
    return trouble.why;
  } catch (const std::filesystem::filesystem_error& error) {
    return utf8Of(error.path1()) + ": " + error.code().message();
  } catch (const std::bad_alloc&) {
    return "there is not enough memory for this: " + wordsOf(std::errc::not_enough_memory);
  } catch (const std::length_error&) {
    return "there is not enough memory for this: " + wordsOf(std::errc::not_enough_memory);
  } catch (const std::exception& error) {
    return error.what();
  } catch (...) {
    return "an error of an unknown kind";
  }
}

int say(const std::string& why) {
  printTrouble({why});
  return kTrouble;
}

}  // namespace

int runProgram(const std::function<int()>& run) {
  StandardOutput output;
  int result = 0;
  try {
    result = run();
  } catch (...) {
    result = say(whatEndedIt());
  }
  const std::string failure = output.failure();
  return failure.empty() ? result : say("the output could not be written: " + failure);
}

}  // namespace standin
