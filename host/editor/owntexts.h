// What the host itself says to a person: every text once, in two languages.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "host/editor/owntextrows.h"
#include "host/runtime/result.h"

namespace host
{
// One of the host's own texts, named by its English words. A text without a row does not compile.
class OwnText
{
public:
    consteval OwnText(const wchar_t* english) : m_row(rowOf(english)) {}

    const wchar_t* english() const { return m_row->english; }
    const wchar_t* russian() const { return m_row->russian; }

private:
    static consteval const OwnTextRow* rowOf(std::wstring_view english)
    {
        for (const OwnTextRow& row : ownTextRows)
        {
            if (row.english == english)
            {
                return &row;
            }
        }
        throw "the text has no row";
    }

    const OwnTextRow* m_row;
};

// Whether a person reads along who works in Russian. Scripts get the same words in every language.
bool readsRussian();

// The text as the reader has to see it, with the values in the places of %1, %2 and so on.
std::wstring own(OwnText text, std::initializer_list<std::wstring_view> values = {});

// A failure whose line is that text.
Failure ownFailure(OwnText text, std::initializer_list<std::wstring_view> values = {});
}  // namespace host
