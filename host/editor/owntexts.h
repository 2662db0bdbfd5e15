// The texts that the host itself shows to a person, each once, in two languages. Accessors return
// [borrowed] texts that live as long as the program.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "host/editor/owntextrows.h"
#include "host/basics/result.h"

namespace host
{
// Names one of the host's own texts by its English words. A text without a row does not compile.
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

// Tells whether the output is read by a person who works in Russian. A script gets English in every
// locale, so that its output does not depend on the locale.
bool readsRussian();

// Returns the text in the reader's language, with the values in place of %1, %2 and so on.
std::wstring own(OwnText text, std::initializer_list<std::wstring_view> values = {});

// Returns a failure whose line is that text.
Failure ownFailure(OwnText text, std::initializer_list<std::wstring_view> values = {});
}  // namespace host
