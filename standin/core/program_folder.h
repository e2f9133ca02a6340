// Where the running program and the module under test lie.
#pragma once

#include <string>

namespace standin {

// The file of the running program, UTF-8.
std::string programFile();

// The folder of the running program, UTF-8.
std::string programFolder();

// What the module's file is called on this system.
std::string moduleFileName();

// The module that a program of this build plays host to: the file named by VARNEL_MODULE, else the one beside the program
// or one folder above it (test programs lie in a folder of their own). UTF-8; empty when there is none.
std::string modulePath();

}  // namespace standin
