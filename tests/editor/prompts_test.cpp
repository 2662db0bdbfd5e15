#include <gtest/gtest.h>

#include "acedads.h"
#include "geassign.h"
#include "host/database/drawing.h"
#include "host/editor/ucs.h"
#include "tests/support/session.h"

namespace
{
using support::Session;

enum class Ask
{
    point,
    corner,
    distance,
    keyword
};

// The result of one prompt.
struct Result
{
    int code = 0;
    std::wstring text;  // of acedGetInput
    AcGePoint3d point{-1, -1, -1};
    double distance = -1;
    std::wstring word;
};

Result ask(Session& session, Ask kind, int bits, const wchar_t* keywords,
           std::vector<std::string> lines)
{
    Result result;
    session.run(
        [&]
        {
            ACHAR word[133] = L"";
            const AcGePoint3d base(1, 1, 5);
            acedInitGet(bits, keywords);
            switch (kind)
            {
                case Ask::point:
                    result.code = acedGetPoint(nullptr, L"\nPoint: ", asDblArray(result.point));
                    break;
                case Ask::corner:
                    result.code =
                        acedGetCorner(asDblArray(base), L"\nCorner: ", asDblArray(result.point));
                    break;
                case Ask::distance:
                    result.code = acedGetDist(nullptr, L"\nDistance: ", &result.distance);
                    break;
                case Ask::keyword:
                    result.code = acedGetKword(L"\nKeyword: ", word);
                    break;
            }
            result.word = word;
            ACHAR input[133] = L"";
            EXPECT_EQ(acedGetInput(input), RTNORM);
            result.text = input;
        },
        std::move(lines));
    return result;
}

struct Row
{
    Ask kind;
    int bits;
    const wchar_t* keywords;
    const char* line;
    int code;
    const wchar_t* text;  // of acedGetInput, for RTKWORD and keywords
};

TEST(Prompts, oneAnswerIsWhatTheOptionsMakeOfIt)
{
    const Row rows[] = {
        {Ask::point, 0, nullptr, "", RTNONE, L""},
        {Ask::point, 128, L"S", "", RTNONE, L""},
        {Ask::point, 129, L"S", "", RTKWORD, L""},    // any text except the empty one
        {Ask::point, 128, L"S", "   ", RTNONE, L""},  // a blank is Enter
        {Ask::point, 128, L"S", "s", RTKWORD, L"S"},
        {Ask::point, 128, L"S", "settings", RTKWORD, L"settings"},  // as typed, no keyword
        {Ask::point, 128, L"S", "Settings", RTKWORD, L"Settings"},
        {Ask::point, 128, L"Н", "н", RTKWORD, L"Н"},
        {Ask::point, 128, L"S", "5", RTKWORD, L"5"},  // a number is not a point
        {Ask::point, 128, L"S", "1,2", RTNORM, L""},
        {Ask::point, 0, nullptr, "^C", RTCAN, L""},
        {Ask::point, 129, L"S", "^C", RTCAN, L""},
        {Ask::corner, 0, nullptr, "", RTNONE, L""},
        {Ask::corner, 128, L"U", "u", RTKWORD, L"U"},
        {Ask::corner, 0, nullptr, "^C", RTCAN, L""},
        {Ask::distance, 0, nullptr, "", RTNONE, L""},
        {Ask::distance, 0, nullptr, "-5", RTNORM, L""},
        {Ask::distance, 0, nullptr, "0", RTNORM, L""},
        {Ask::distance, 128, L"D", "d", RTKWORD, L"D"},
        {Ask::distance, 134, L"D", "1e5", RTNORM, L""},
        {Ask::distance, 128, L"D", "x", RTKWORD, L"x"},
        {Ask::distance, 0, nullptr, "^C", RTCAN, L""},
        {Ask::keyword, 0, L"A S", "", RTNONE, L""},
        {Ask::keyword, 0, L"A S", "a", RTNORM, L"A"},
        {Ask::keyword, 128, L"A S", "a", RTNORM, L"A"},
        {Ask::keyword, 128, L"A S", "apply", RTKWORD, L"apply"},
        {Ask::keyword, 128, L"П Н", "п", RTNORM, L"П"},
        {Ask::keyword, 128, L"A S", "", RTNONE, L""},
        {Ask::keyword, 128, L"A S", "^C", RTCAN, L""},
        {Ask::keyword, 8 | 32 | 128, L"A", "a", RTNORM, L"A"},
    };
    for (const Row& row : rows)
    {
        Session session;
        const Result result = ask(session, row.kind, row.bits, row.keywords, {row.line});
        EXPECT_EQ(result.code, row.code) << row.line << " bits " << row.bits;
        EXPECT_EQ(result.text, row.text) << row.line << " bits " << row.bits;
        EXPECT_FALSE(session.endedInsideCommand) << row.line << " bits " << row.bits;
    }
}

struct Refusal
{
    Ask kind;
    int bits;
    const char* line;
    const char* good;
    const char* complaint;
};

TEST(Prompts, refusedAnswerIsToldAndTheSamePromptComesAgain)
{
    const Refusal rows[] = {
        {Ask::point, 0, "abc", "1,1", "Invalid point."},
        {Ask::point, 1, "", "1,1", "Invalid point."},
        {Ask::point, 0, "5", "1,1", "Invalid point."},
        {Ask::corner, 1, "", "1,1", "Invalid point."},
        {Ask::distance, 0, "abc", "1", "Requires numeric distance or two points."},
        {Ask::distance, 1, "", "1", "Requires numeric distance or two points."},
        {Ask::distance, 2, "0", "1", "Value must be nonzero."},
        {Ask::distance, 4, "-1", "1", "Value must be positive."},
        {Ask::distance, 6, "-1", "1", "Value must be positive and nonzero."},
        {Ask::distance, 130, "0", "1", "Value must be nonzero."},
        {Ask::keyword, 0, "x", "K", "Invalid option keyword."},
        {Ask::keyword, 1, "", "K", "Invalid option keyword."},
    };
    for (const Refusal& row : rows)
    {
        Session session;
        Result result;
        result = ask(session, row.kind, row.bits, L"K", {row.line, row.good});
        EXPECT_EQ(result.code, RTNORM) << row.line << " bits " << row.bits;
        ASSERT_EQ(session.questions.size(), 2u) << row.line << " bits " << row.bits;
        EXPECT_EQ(session.questions[0].prompt, session.questions[1].prompt);
        const std::string said = session.run(
            [&]
            {
                AcGePoint3d point;
                double distance;
                ACHAR word[133];
                acedInitGet(row.bits, L"K");
                const AcGePoint3d base;
                row.kind == Ask::point ? acedGetPoint(nullptr, nullptr, asDblArray(point))
                : row.kind == Ask::corner
                    ? acedGetCorner(asDblArray(base), nullptr, asDblArray(point))
                : row.kind == Ask::distance ? acedGetDist(nullptr, nullptr, &distance)
                                            : acedGetKword(nullptr, word);
            },
            {row.line, row.good});
        EXPECT_NE(said.find(std::string(row.complaint) + "\n"), std::string::npos) << said;
    }
}

TEST(Prompts, resultStaysAsItWasUnlessAPointIsGiven)
{
    for (const char* line : {"", "^C", "s", "what"})
    {
        Session session;
        const Result result = ask(session, Ask::point, 128, L"S", {line});
        EXPECT_EQ(result.point.x, -1) << line;
    }
}

TEST(Prompts, optionsServeTheNextQuestionOnly)
{
    Session session;
    session.run(
        []
        {
            AcGePoint3d point;
            ACHAR text[133];
            resbuf value;
            acedInitGet(128, L"S");
            EXPECT_EQ(acedGetInput(text), RTNORM);  // neither of these asks the user
            EXPECT_EQ(acedGetVar(L"UCSICON", &value), RTNORM);
            EXPECT_EQ(acedGetPoint(nullptr, L"", asDblArray(point)), RTKWORD);
            EXPECT_EQ(acedGetPoint(nullptr, L"", asDblArray(point)), RTNORM);  // "S" is refused
        },
        {"S", "S", "1,2"});
    EXPECT_EQ(session.questions.size(), 3u);
}

TEST(Prompts, optionsAreDroppedByAQuestionThatWasCancelled)
{
    Session session;
    session.run(
        []
        {
            AcGePoint3d point;
            acedInitGet(1, L"");
            EXPECT_EQ(acedGetPoint(nullptr, L"", asDblArray(point)), RTCAN);
            EXPECT_EQ(acedGetPoint(nullptr, L"", asDblArray(point)), RTNONE);
        },
        {"^C", ""});
}

TEST(Prompts, pointsAreMeasuredFromTheLastOne)
{
    Session session;
    session.run(
        []
        {
            AcGePoint3d point;
            acedGetPoint(nullptr, L"", asDblArray(point));
            acedGetPoint(nullptr, L"", asDblArray(point));
            EXPECT_EQ(point, AcGePoint3d(13, 24, 3));
            acedGetPoint(nullptr, L"", asDblArray(point));
            EXPECT_EQ(point, AcGePoint3d(13, 34, 3));
            const AcGePoint3d base(100, 100, 0);
            acedGetPoint(asDblArray(base), L"", asDblArray(point));
            EXPECT_EQ(point, AcGePoint3d(101, 102, 0));  // a base goes before it
        },
        {"10,20,3", "@3,4", "@10<90", "@1,2"});
}

TEST(Prompts, twoCoordinatesTakeTheElevation)
{
    Session session;
    host::stateOf(session.drawing()).variables[L"ELEVATION"] = 7.5;
    EXPECT_EQ(ask(session, Ask::point, 0, L"", {"1,2"}).point, AcGePoint3d(1, 2, 7.5));
    EXPECT_EQ(ask(session, Ask::point, 0, L"", {"1,2,3"}).point, AcGePoint3d(1, 2, 3));
    EXPECT_EQ(ask(session, Ask::corner, 0, L"", {"1,2,3"}).point, AcGePoint3d(1, 2, 7.5));
    EXPECT_EQ(ask(session, Ask::corner, 0, L"", {"@1,2"}).point, AcGePoint3d(2, 3, 7.5));
}

TEST(Prompts, starMeansWorldAndTheResultIsInTheUcs)
{
    Session session;
    host::setUcs(session.document(), host::frameOf({100, 50, 0}, {0, 1, 0}, {-1, 0, 0}, {0, 0, 1}));
    EXPECT_EQ(ask(session, Ask::point, 0, L"", {"*110,70"}).point, AcGePoint3d(20, -10, 0));
    EXPECT_EQ(ask(session, Ask::point, 0, L"", {"110,70"}).point, AcGePoint3d(110, 70, 0));
}

TEST(Prompts, cornerAndTheOneOppositeAreInTheUcs)
{
    Session session;
    host::setUcs(session.document(), host::frameOf({100, 50, 0}, {0, 1, 0}, {-1, 0, 0}, {0, 0, 1}));
    EXPECT_EQ(ask(session, Ask::corner, 0, L"", {"*110,70"}).point, AcGePoint3d(20, -10, 0));
    EXPECT_EQ(ask(session, Ask::corner, 0, L"", {"110,70"}).point, AcGePoint3d(110, 70, 0));
    EXPECT_EQ(ask(session, Ask::corner, 0, L"", {"@3,4"}).point, AcGePoint3d(4, 5, 0));
}

TEST(Prompts, lastPointKeepsItsPlaceWhenTheUcsChanges)
{
    Session session;
    ask(session, Ask::point, 0, L"", {"10,20"});
    host::setUcs(session.document(), host::frameOf({10, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}));
    EXPECT_EQ(ask(session, Ask::point, 0, L"", {"@1,1"}).point, AcGePoint3d(1, 21, 0));
}

TEST(Prompts, cornerNeedsItsOpposite)
{
    Session session;
    session.run(
        []
        {
            AcGePoint3d point;
            EXPECT_EQ(acedGetCorner(nullptr, L"", asDblArray(point)), RTERROR);
        });
    EXPECT_TRUE(session.questions.empty());
}

TEST(Prompts, distanceIsANumberOrBetweenTwoPoints)
{
    Session session;
    EXPECT_EQ(ask(session, Ask::distance, 0, L"", {"12.5"}).distance, 12.5);
    EXPECT_EQ(ask(session, Ask::distance, 0, L"", {"0,0,0", "3,4,12"}).distance, 13);
    EXPECT_EQ(ask(session, Ask::distance, 64, L"", {"0,0,0", "3,4,12"}).distance, 5);
    EXPECT_EQ(ask(session, Ask::distance, 0, L"", {"1,1", "@3,4"}).distance, 5);
    EXPECT_EQ(ask(session, Ask::distance, 0, L"", {"1,1", "^C"}).code, RTCAN);
    EXPECT_EQ(ask(session, Ask::distance, 2, L"", {"1,1", "1,1", "1,4"}).distance, 3);
    EXPECT_EQ(ask(session, Ask::distance, 0, L"", {"1,1", "", "5", "1,3"}).distance, 2);
    session.run(
        []
        {
            const AcGePoint3d base(1, 1, 0);
            double distance;
            EXPECT_EQ(acedGetDist(asDblArray(base), L"", &distance), RTNORM);
            EXPECT_EQ(distance, 5);
        },
        {"4,5"});
    EXPECT_EQ(session.questions.size(), 1u);
}

TEST(Prompts, keywordIsInTheResultAndInTheInput)
{
    Session session;
    EXPECT_EQ(ask(session, Ask::keyword, 0, L"LType", {"lt"}).word, L"LType");
    EXPECT_EQ(ask(session, Ask::keyword, 128, L"A", {"Other"}).word, L"Other");
}

TEST(Prompts, keywordQuestionWithoutKeywordsIsAnError)
{
    Session session;
    EXPECT_EQ(ask(session, Ask::keyword, 0, L"", {"x"}).code, RTERROR);
    EXPECT_TRUE(session.questions.empty());
}

TEST(Prompts, longTextIsCutToWhatTheBufferHolds)
{
    Session session;
    const Result result = ask(session, Ask::keyword, 128, L"A", {std::string(500, 'x')});
    EXPECT_EQ(result.word, std::wstring(132, L'x'));
    EXPECT_EQ(result.text, std::wstring(132, L'x'));
}

TEST(Prompts, frontEndIsToldWhatIsAsked)
{
    Session session;
    ask(session, Ask::corner, 0, L"Undo", {"1,1"});
    const host::Question& question = session.questions.at(0);
    EXPECT_EQ(question.kind, host::Question::Kind::corner);
    EXPECT_EQ(question.prompt, L"\nCorner: ");
    EXPECT_EQ(question.keywords, std::vector<std::wstring>{L"Undo"});
    EXPECT_EQ(question.base, AcGePoint3d(1, 1, 5));
}

TEST(Prompts, withoutACommandLineEveryQuestionIsAnError)
{
    AcGePoint3d point;
    ACHAR text[133];
    double distance;
    EXPECT_EQ(acedInitGet(0, L""), RTERROR);
    EXPECT_EQ(acedGetPoint(nullptr, L"", asDblArray(point)), RTERROR);
    EXPECT_EQ(acedGetCorner(asDblArray(point), L"", asDblArray(point)), RTERROR);
    EXPECT_EQ(acedGetDist(nullptr, L"", &distance), RTERROR);
    EXPECT_EQ(acedGetKword(L"", text), RTERROR);
    EXPECT_EQ(acedGetInput(text), RTERROR);
}
}  // namespace
