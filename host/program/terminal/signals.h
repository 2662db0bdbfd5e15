// Handles the signals that end the program.
#pragma once

namespace host
{
// Makes these signals delete an unfinished file before they end the program. A signal that the
// program was started to ignore stays ignored.
void endTidilyAtSignals();

// Makes SIGINT, SIGTERM and SIGHUP end only the input, so that a session at the terminal ends
// normally and keeps the work. Further signals change nothing, because a terminal that is closed
// sends several. Saves the modes of the terminal, which the end of the program restores.
void endInputAtSignals();

// Ends the program by the signal that has ended its input. Returns when no signal has.
void endBySignalOfInput();
}  // namespace host
