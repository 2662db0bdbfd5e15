// The seam between the editor and whatever a person, or a script, sits at.
//
// A command runs on its own thread; the input may belong to another one. The editor calls a front
// end from the command's thread only and waits there for each answer. A front end with a thread of
// its own for the input meets the command in a Rendezvous.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "gepnt3d.h"

namespace host
{
struct Question
{
    enum class Kind
    {
        command,
        point,
        corner,
        distance,
        keyword,
        name,  // one word, or several between double quotes
        file,  // likewise, the name of a file
        text,
        messageBox,
        dialog
    };

    Kind kind = Kind::text;
    std::wstring prompt{};                 // as it stands on the command line
    std::vector<std::wstring> keywords{};  // what may be answered by name; the buttons of a box
    std::optional<AcGePoint3d> base{};     // [ucs]; where a rubber band starts
    std::wstring caption{};                // of a box or dialog
    std::wstring text{};                   // of a box
    // Whether it was answered otherwise, by a click on a window; asked on the command's thread.
    std::function<bool()> isWithdrawn{};
};

struct Answer
{
    enum class Kind
    {
        line,
        enter,
        cancel,
        endOfInput,
        withdrawn
    };

    Kind kind = Kind::endOfInput;
    std::wstring text{};   // of a line, as typed
    bool visible = false;  // the user sees what was typed: it is not echoed; of a withdrawn
                           // question, the line has been ended
};

// The progress meter of the status bar.
struct Meter
{
    std::wstring label;
    int least;
    int most;
    int position;  // may lie outside the two
};

class FrontEnd
{
public:
    virtual ~FrontEnd() = default;

    // Shows the text at once, with no line end added. UTF-8; any thread may call.
    virtual void print(std::string_view text) = 0;
    // Reports on the run itself, apart from what the user reads: one line without its end.
    virtual void report(std::string_view line) = 0;
    // The prompt has been printed already. Once it has given endOfInput it gives nothing else.
    virtual Answer ask(const Question& question) = 0;
    // The meter as it stands now; nothing when it has gone.
    virtual void showMeter(const std::optional<Meter>&) {}
    // A person reads along and types: help is welcome that a script has no use for.
    virtual bool interactive() const { return false; }
};
}  // namespace host
