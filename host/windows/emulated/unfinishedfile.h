// A file that is written beside another one until it takes that one's place.
#pragma once

#include <sys/types.h>

#include <span>
#include <string>

namespace host
{
// Makes a new file and opens it for writing; -1 with errno if that cannot be done. Until it is
// settled `deleteUnfinishedFile` knows it. There is one at a time.
int createUnfinishedFile(const std::string& path, mode_t mode);
// It has got its own name, or is no more.
void settleUnfinishedFile();

// For handlers of signals that end the program: the unfinished file goes, and no other comes.
void deleteUnfinishedFile();

// The signals with which a user, a terminal or the system ends a program.
std::span<const int> endingSignals();
}  // namespace host
