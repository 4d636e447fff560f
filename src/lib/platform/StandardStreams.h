#pragma once

#include "lib/err/ResultCode.h"
#include "lib/platform/File.h"

#include <cstddef>
#include <cstdio>
#include <string>

/// Standard input and output as streams of bytes, unbuffered. A signal that Interrupts notices ends a call
/// that waits, on whichever thread, and the call fails.
namespace tessaly::platform {

/// One read; zero bytes at the end.
ResultCode readStandardInput(void* buffer, std::size_t count, std::size_t& countRead);
/// One write; on success never nothing. See isClosedPipe.
ResultCode writeStandardOutput(const void* buffer, std::size_t count, std::size_t& countWritten);

/// Some file systems tell only now that what was written is lost.
ResultCode closeStandardOutput();

/// As std::fopen opens for reading bytes, of a path as Path.h has it in bytes; null on failure. May wait for
/// the other end of a pipe.
std::FILE* openBytes(const std::string& path);

/// What standard input is connected to.
FileStatus standardInputStatus();
bool isOutputTerminal();
/// A write to standard output has failed because nobody reads it any more: no fault to speak of.
bool isClosedPipe(ResultCode result);

/// To be called first. Takes the place of each of the three standard streams that the program was started
/// without, so that no file which is opened later becomes one; using it is an error. All take bytes as they
/// are, and a terminal shows UTF-8 as far as this is for the program to say.
void prepareStandardStreams();

} // namespace tessaly::platform
