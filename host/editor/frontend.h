// The seam between the editor and the source of its input: a person or a script.
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
// A question to the user.
struct Question
{
    enum class Kind
    {
        command,
        point,
        corner,
        distance,
        keyword,
        name,  // one word, or several words between double quotes
        file,  // as `name`, for the name of a file
        text,
        messageBox,
        dialog
    };

    Kind kind = Kind::text;
    std::wstring prompt{};  // the text on the command line
    std::vector<std::wstring>
        keywords{};  // the answers that have names; for a message box, its buttons
    std::optional<AcGePoint3d> base{};  // [ucs]; the start of a rubber band
    std::wstring caption{};             // the caption of a message box or dialog
    std::wstring text{};                // the text of a message box
    // Tells whether a click on a window has answered the question already. The function may be
    // empty. The editor calls it on the command's thread.
    std::function<bool()> isWithdrawn{};
};

// The answer to a question.
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
    std::wstring text{};  // the line as typed
    // True if the user sees the typed text already, so that the editor does not echo it. For a
    // withdrawn question it means that the line of the prompt has been ended.
    bool visible = false;
};

// The progress meter of the status bar.
struct Meter
{
    std::wstring label;
    int least;
    int most;
    int position;  // may lie outside `least` to `most`
};

// The source of the input and the destination of the output: a person or a script.
class FrontEnd
{
public:
    virtual ~FrontEnd() = default;

    // Shows the text, in UTF-8, at once and adds no line end. Any thread may call it.
    virtual void print(std::string_view text) = 0;
    // Shows a line about the run itself, in UTF-8 without its end, separately from the output that
    // the user reads.
    virtual void report(std::string_view line) = 0;
    // Waits for the answer to a question whose prompt has been printed already. After the first
    // endOfInput, every answer is endOfInput.
    virtual Answer ask(const Question& question) = 0;
    // Shows the current state of the meter. No value removes the meter.
    virtual void showMeter(const std::optional<Meter>&) {}
    // Tells whether a person reads the output and types. A person gets help that would only disturb
    // a script.
    virtual bool interactive() const { return false; }
};
}  // namespace host
