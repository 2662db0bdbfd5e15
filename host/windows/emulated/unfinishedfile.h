// A file that is written beside another file until it takes that file's place.
#pragma once

#include <sys/types.h>

#include <span>
#include <string>

namespace host
{
// Creates a new file and opens it for writing. Returns -1 with errno on failure.
// `deleteUnfinishedFile` can delete the file until it is settled. Only one such file exists at a
// time.
int createUnfinishedFile(const std::string& path, mode_t mode);
// Records that the file has got its final name or was deleted.
void settleUnfinishedFile();

// Deletes the unfinished file and prevents new ones. Handlers of signals that end the program may
// call it.
void deleteUnfinishedFile();

// Returns the signals with which a user, a terminal or the system ends a program [borrowed].
std::span<const int> endingSignals();
}  // namespace host
