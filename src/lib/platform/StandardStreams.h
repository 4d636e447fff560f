#pragma once

#include "lib/err/ResultCode.h"
#include "lib/platform/File.h"

#include <cstddef>

/// Standard input and output as streams of bytes, unbuffered. A signal that Interrupts notices ends a call
/// that waits, on whichever thread: (1, EINTR).
namespace tessaly::platform {

/// One read; zero bytes at the end.
ResultCode readStandardInput(void* buffer, std::size_t count, std::size_t& countRead);
/// One write; on success never nothing. (1, EPIPE) when nobody reads it any more.
ResultCode writeStandardOutput(const void* buffer, std::size_t count, std::size_t& countWritten);

/// Some file systems tell only now that what was written is lost.
ResultCode closeStandardOutput();

/// What standard input is connected to.
FileStatus standardInputStatus();
bool isOutputTerminal();
/// A write to standard output has failed because nobody reads it any more: no fault to speak of.
bool isClosedPipe(ResultCode result);

/// Takes the place of each of the three standard streams that the program was started without, so that no
/// file which is opened later becomes one. Using it is an error.
void holdStandardStreams();

} // namespace tessaly::platform
