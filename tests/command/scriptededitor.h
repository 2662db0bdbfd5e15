// A drawing with an editor that takes the user's answers from a list.
#pragma once

#include <deque>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "hostapi/host.h"
#include "tests/settings/temporaryfile.h"
#include "tests/support/meter.h"

// One answer, with the result code that the prompt returns for it.
struct ScriptedAnswer
{
    int result = RTNORM;
    AcGePoint3d point;                // [ucs]
    std::wstring text;                // a keyword or a typed text
    std::function<void()> look = {};  // called when the question is asked
};

ScriptedAnswer point(double x, double y, double z = 0);
ScriptedAnswer text(int result, const wchar_t* text);
ScriptedAnswer code(int result);

// The contents of the drawing without erased objects.
struct Contents
{
    int lines = 0;
    int outlines = 0;
    int texts = 0;
    std::vector<unsigned> groups = {};  // the number of members of each group

    bool operator==(const Contents&) const = default;
};

// Answers the module's calls while it lives. Only one object may exist at a time. At first the UCS
// is the world's and the view is plan.
class ScriptedEditor
{
public:
    ScriptedEditor();
    ~ScriptedEditor();
    ScriptedEditor(const ScriptedEditor&) = delete;
    ScriptedEditor& operator=(const ScriptedEditor&) = delete;

    // Runs the command. Fails the test when an answer is left over or an object is left open.
    void run(std::deque<ScriptedAnswer> answers);
    Contents contents() const;

    std::vector<std::wstring> log;                       // the calls in their order
    std::wstring said;                                   // the text that acutPrintf printed
    std::function<void(const std::wstring&)> hear = {};  // called with each printed text
    std::function<void()> placing = {};                  // called before an entity gets its place
    TemporaryFile settings;                              // the module appears to be in its folder
    bool settingsFolderIsMissing = false;

    std::deque<int> boxAnswers;  // the buttons pressed in the message boxes
    LCID locale = 0x0409;
    int icon = 3;
    int follow = 1;
    std::set<std::wstring> unreadable;  // variables that acedGetVar refuses
    bool ucsCannotBeSet = false;
    bool inputCannotBeRead = false;
    std::function<void(CDialog&)> userOfDialog;  // without a function the user cancels
    AcGeMatrix3d ucs;
    std::vector<AcGeMatrix3d> formerUcs;

    AcDbDatabase* database;  // the database of the only document
    tests::Meter meter;

    // The following members serve the functions that replace the host's.
    ScriptedAnswer next(const std::wstring& call);
    std::wstring lastText;
    std::wstring options;  // the options of the next prompt, as acedInitGet received them

private:
    std::wstring modulePath() const;

    std::deque<ScriptedAnswer> m_answers;
};
