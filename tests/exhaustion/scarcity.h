// Memory and files that run out at a chosen moment, for our own code: what other libraries ask for
// they get, and it does not count.
#pragma once

namespace scarcity
{
enum class Of
{
    memory,      // every request for memory
    files,       // every call that opens, reads, writes, renames or closes a file
    fileLength,  // likewise, but writes and reads do a part of their work instead of failing
    space,       // every call that makes a file or writes
};

// From the start on, requests are counted; number `first`, from 1, is refused, and with `forGood`
// all after it.
void start(Of what, long first, bool forGood, int error = 0);
// Ends that. Whether a request was refused.
bool stop();
// How many there were since the start, as far as they were counted.
long requests();

struct Refused
{
    char last[256];  // the call on a file, and which; empty for none
    bool deletion;   // whether a file could not be deleted
};
// Where to write that; null for nowhere.
void noteRefusedIn(Refused* note);
}  // namespace scarcity
