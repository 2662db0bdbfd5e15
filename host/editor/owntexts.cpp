#include "host/editor/owntexts.h"

#include "host/editor/editor.h"
#include "host/runtime/locale.h"
#include "host/windows/text.h"
#include "rxregsvc.h"

namespace host
{
bool readsRussian()
{
    const Editor* const editor = Editor::current();
    return editor != nullptr && editor->interactive() && acrxProductLCID() == russianLocale;
}

std::wstring own(OwnText text, std::initializer_list<std::wstring_view> values)
{
    std::wstring said;
    std::wstring_view rest = readsRussian() ? text.russian() : text.english();
    for (std::size_t at = rest.find(L'%'); at != rest.npos; at = rest.find(L'%'))
    {
        said += rest.substr(0, at);
        said += values.begin()[rest[at + 1] - L'1'];
        rest.remove_prefix(at + 2);
    }
    return said.append(rest);
}

Failure ownFailure(OwnText text, std::initializer_list<std::wstring_view> values)
{
    return {toUtf8(own(text, values))};
}
}  // namespace host
