#include "geassign.h"
#include "host/text/numbers.h"
#include "host/editor/promptloop.h"

namespace host
{
namespace
{
double distanceBetween(const AcGePoint3d& from, AcGePoint3d to, int bits)
{
    if (bits & RSG_2D)
    {
        to.z = from.z;
    }
    return from.distanceTo(to);
}

// Returns the complaint about the number; no value when the options allow it.
std::optional<OwnText> complaintAbout(double value, int bits)
{
    const bool zero = (bits & RSG_NOZERO) && value == 0;
    const bool negative = (bits & RSG_NONEG) && value < 0;
    if (!zero && !negative)
    {
        return std::nullopt;
    }
    const bool both = (bits & RSG_NOZERO) && (bits & RSG_NONEG);
    return both   ? OwnText(L"Value must be positive and nonzero.")
           : zero ? OwnText(L"Value must be nonzero.")
                  : OwnText(L"Value must be positive.");
}

Reading checked(double value, int bits)
{
    const std::optional<OwnText> complaint = complaintAbout(value, bits);
    return complaint ? refused(*complaint) : taken;
}

// Reads a number or a point. The point is the second end of the distance if there is a base, and
// otherwise the first end.
struct DistanceReader
{
    const AcGePoint3d* base;
    int bits;
    double& distance;
    std::optional<AcGePoint3d>& first;

    Reading operator()(std::wstring_view text) const
    {
        if (const std::optional<double> number = parseReal(text))
        {
            distance = *number;
            return checked(distance, bits);
        }
        const std::optional<TypedPoint> typed = parsePoint(text);
        if (!typed)
        {
            return foreign(base ? OwnText(L"Requires numeric distance or second point.")
                                : OwnText(L"Requires numeric distance or two points."));
        }
        const AcGePoint3d point = resolvePoint(*typed, base);
        setLastPoint(point);
        if (base == nullptr)
        {
            first = point;
            return taken;
        }
        distance = distanceBetween(*base, point, bits);
        return checked(distance, bits);
    }
};

int askSecondPoint(Editor& editor, const AcGePoint3d& first, int bits, double& distance)
{
    const Question question{
        .kind = Question::Kind::point, .prompt = own(L"Specify second point: "), .base = first};
    const auto read = [&](std::wstring_view text)
    {
        AcGePoint3d second;
        const Reading reading = pointReader(&first, second)(text);
        if (reading.state != Reading::State::taken)
        {
            return reading;
        }
        setLastPoint(second);
        distance = distanceBetween(first, second, bits);
        return checked(distance, bits);
    };
    // The first point alone gives no distance, so Enter is not allowed here.
    return promptUntilTaken(editor, question, {.bits = RSG_NONULL}, read);
}

int askDistance(Editor& editor, const Question& question, const PromptOptions& options,
                double& distance)
{
    std::optional<AcGePoint3d> first;
    const AcGePoint3d* base = question.base ? &*question.base : nullptr;
    const DistanceReader read{base, options.bits, distance, first};
    const int result = promptUntilTaken(editor, question, options, read);
    return result == RTNORM && first ? askSecondPoint(editor, *first, options.bits, distance)
                                     : result;
}
}  // namespace
}  // namespace host

using namespace host;

int acedGetDist(const ads_point pt, const ACHAR* prompt, ads_real* result)
{
    Editor* editor = askingEditor();
    if (editor == nullptr)
    {
        return RTERROR;
    }
    double distance = 0;
    const Question question = questionOf(Question::Kind::distance, prompt, pt);
    const int code = askDistance(*editor, question, editor->takeOptions(), distance);
    if (code == RTNORM)
    {
        *result = distance;
    }
    return code;
}
