#include "host/program/longwork.h"

#include <utility>

#include "host/editor/editor.h"
#include "host/runtime/locale.h"
#include "rxregsvc.h"

namespace host
{
namespace
{
const std::chrono::milliseconds patience(1000);
const int fineness = 100;
}  // namespace

LongWork::LongWork(std::wstring label, Show show)
    : m_meter{std::move(label), 0, fineness, 0}, m_show(std::move(show))
{
}

// Chooses the language without `own`, because no editor exists yet while a drawing is opened.
LongWork::LongWork(OwnText label, FrontEnd& frontEnd)
    : LongWork(frontEnd.interactive() && acrxProductLCID() == russianLocale ? label.russian()
                                                                            : label.english(),
               [&frontEnd](const std::optional<Meter>& meter) { frontEnd.showMeter(meter); })
{
}

LongWork::LongWork(OwnText label, Editor& editor)
    : LongWork(own(label), [&editor](const std::optional<Meter>& meter) { editor.setMeter(meter); })
{
}

LongWork::~LongWork()
{
    if (m_shown)
    {
        m_show(std::nullopt);
    }
}

Progress LongWork::progress()
{
    return [this](double part) { reach(part); };
}

void LongWork::reach(double part)
{
    const int position = int(part * fineness);
    const bool late = std::chrono::steady_clock::now() - m_start >= patience;
    if (late && (!m_shown || position != m_meter.position))
    {
        m_shown = true;
        m_meter.position = position;
        m_show(m_meter);
    }
}
}  // namespace host
