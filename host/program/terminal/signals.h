// Signals that end the program.
#pragma once

namespace host
{
// From here on they take a file that is not finished with them. What the user has told the program
// to ignore it goes on ignoring.
void endTidilyAtSignals();

// For a person at the terminal. SIGINT, SIGTERM and SIGHUP end the input only, so that the session
// comes to its own end and keeps the work. More of them change nothing: a terminal that is closed
// sends several. The terminal is left in the modes that it has now.
void endInputAtSignals();

// Ends the program by the signal that has ended its input, if one has.
void endBySignalOfInput();
}  // namespace host
