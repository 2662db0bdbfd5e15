// Memory and files that run out at a chosen moment.
#pragma once

#include <cstddef>

namespace scarcity
{
enum class Of
{
    memory,      // every request for memory, but for those of other libraries
    files,       // every call that opens, reads, writes, renames or closes a file
    fileLength,  // likewise, but writes and reads do a part of their work instead of failing
};

// From the start on, requests are counted; number `first`, from 1, is refused, and with `forGood`
// all after it.
void start(Of what, long first, bool forGood, int error = 0);
// Ends that. Whether a request was refused.
bool stop();
// How many there were since the start, as far as they were counted.
long requests();
// Where to write which call was refused, and on which file if any; null for nowhere.
const std::size_t noteSize = 256;
void noteRefusedIn(char* note);
}  // namespace scarcity
