// Makes memory and files run out at a chosen moment, but only for our own code: requests of other
// libraries succeed and are not counted.
#pragma once

namespace scarcity
{
enum class Of
{
    memory,      // every request for memory
    files,       // every call that opens, reads, writes, renames or closes a file
    fileLength,  // the same calls, but writes and reads do a part of their work instead of failing
    space,       // every call that makes a file or writes
};

// Starts to count requests. Refuses number `first`, from 1, and with `forGood` all that follow.
void start(Of what, long first, bool forGood, int error = 0);
// Stops the counting. Returns true if a request was refused.
bool stop();
// Returns the number of requests since the start, as far as they were counted.
long requests();

struct Refused
{
    char last[256];  // the call on a file and its name; empty if there was none
    bool deletion;   // whether a file could not be deleted
};
// Sets where to record the refused request; null records nothing.
void noteRefusedIn(Refused* note);
}  // namespace scarcity
