// A drawing and the editor on it, with the user's answers written down beforehand.
#pragma once

#include <deque>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "hostapi/host.h"
#include "tests/settings/temporaryfile.h"
#include "tests/support/meter.h"

// One answer, by the result code that the prompt gives for it.
struct ScriptedAnswer
{
    int result = RTNORM;
    AcGePoint3d point;                // [ucs]
    std::wstring text;                // a keyword, or what was typed
    std::function<void()> look = {};  // called when the question is asked
};

ScriptedAnswer point(double x, double y, double z = 0);
ScriptedAnswer text(int result, const wchar_t* text);
ScriptedAnswer code(int result);

// What is in the drawing, erased objects left out.
struct Contents
{
    int lines = 0;
    int outlines = 0;
    int texts = 0;
    std::vector<unsigned> groups = {};  // number of members of each

    bool operator==(const Contents&) const = default;
};

// While it lives, the module talks to it; one at a time. World UCS in a plan view to begin with.
class ScriptedEditor
{
public:
    ScriptedEditor();
    ~ScriptedEditor();
    ScriptedEditor(const ScriptedEditor&) = delete;
    ScriptedEditor& operator=(const ScriptedEditor&) = delete;

    // Runs the command; every answer has to be used up, and nothing left open.
    void run(std::deque<ScriptedAnswer> answers);
    Contents contents() const;

    std::vector<std::wstring> log;                       // calls, in their order
    std::wstring said;                                   // by acutPrintf
    std::function<void(const std::wstring&)> hear = {};  // called with each text that is said
    std::function<void()> placing = {};                  // called before an entity gets its place
    TemporaryFile settings;                              // the module seems to lie in its folder
    bool settingsFolderIsMissing = false;

    std::deque<int> boxAnswers;  // buttons of the message boxes
    LCID locale = 0x0409;
    int icon = 3;
    int follow = 1;
    std::set<std::wstring> unreadable;  // variables that acedGetVar refuses
    bool ucsCannotBeSet = false;
    bool inputCannotBeRead = false;
    std::function<void(CDialog&)> userOfDialog;  // none: cancels
    AcGeMatrix3d ucs;
    std::vector<AcGeMatrix3d> formerUcs;

    AcDbDatabase* database;  // of the one document
    tests::Meter meter;

    // For the functions that stand in for the host's.
    ScriptedAnswer next(const std::wstring& call);
    std::wstring lastText;
    std::wstring options;  // of the next prompt, as acedInitGet gave them

private:
    std::wstring modulePath() const;

    std::deque<ScriptedAnswer> m_answers;
};
