// Pipes and devices as files: for the command line alone; the control reads and writes none.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tessel::cli {

/// The most bytes that a command reads, from a file as from a stream.
/// From a device it is 16 MiB: most have no end.
inline constexpr std::size_t kMostBytes = std::size_t{1} << 30U;

/// Is it "-", a name of an open descriptor (/dev/stdin, /dev/fd/63), a pipe or a character device?
bool IsStream(const std::string& name);

/// All bytes up to the end of the stream; "-" is standard input. Waits for who writes to it. More
/// than kMostBytes are a RuntimeError, as is anything that cannot be read.
std::string ReadStream(const std::string& name);

/// Writes all bytes, but not to what somebody else may have planted in a shared folder (see
/// posix/SharedFolder.h); "-" is standard output, whose failures are told when the program ends.
/// Others are RuntimeErrors.
void WriteStream(const std::string& name, std::string_view bytes);

}  // namespace tessel::cli
