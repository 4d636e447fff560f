#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tessaly::platform {

std::uint32_t processId();

/// The calling thread's number, as the system's tools show it.
std::uint32_t threadId();

/// Ends the process at once: no other thread runs on, nothing is cleaned up.
[[noreturn]] void endProcess(int exitCode);

/// Keeps this process's memory, and the secrets in it, out of core dumps and debuggers for good.
/// False when the system refused. Leak checkers, which debug their own process, no longer work.
bool disableCoreDumps();

/// What main was given, without the program's name, each as the bytes of Path.h. Patterns of file names have
/// been expanded, by the shell or here.
std::vector<std::string> programArguments(int argc, char** argv);

} // namespace tessaly::platform
