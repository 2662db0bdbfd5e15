#include <algorithm>

#include "host/headless/messages.h"
#include "host/text/foldcase.h"

namespace host
{
namespace
{
// Returns the item at a position; null for a position outside the list, such as -1.
const ListItem* itemAt(const Window& list, WPARAM index)
{
    return index < list.items.size() ? &list.items[index] : nullptr;
}

// Inserts an item. The selection stays at the item that was selected.
LRESULT insert(Window& list, std::size_t index, const std::wstring& text)
{
    list.items.insert(list.items.begin() + std::ptrdiff_t(index), {text, 0});
    list.selected += list.selected >= int(index);
    return LRESULT(index);
}

LRESULT insertAt(Window& list, WPARAM index, LPARAM text)
{
    const std::size_t count = list.items.size();
    const std::size_t place = index == WPARAM(-1) ? count : index;
    return place <= count ? insert(list, place, textAt(text)) : CB_ERR;
}

LRESULT add(Window& list, LPARAM text)
{
    if (!list.has(CBS_SORT))
    {
        return insertAt(list, WPARAM(-1), text);
    }
    const std::wstring added = foldCase(textAt(text));
    const auto next = std::ranges::find_if(
        list.items, [&](const ListItem& item) { return added < foldCase(item.text); });
    return insert(list, std::size_t(next - list.items.begin()), textAt(text));
}

LRESULT remove(Window& list, WPARAM index)
{
    if (itemAt(list, index) == nullptr)
    {
        return CB_ERR;
    }
    list.items.erase(list.items.begin() + std::ptrdiff_t(index));
    if (list.selected == int(index))
    {
        list.selected = -1;
    }
    list.selected -= list.selected > int(index);
    return LRESULT(list.items.size());
}

LRESULT clear(Window& list)
{
    list.items.clear();
    list.selected = -1;
    return 0;
}

LRESULT select(Window& list, WPARAM index)
{
    list.selected = itemAt(list, index) != nullptr ? int(index) : -1;
    return list.selected;
}

LRESULT findExact(const Window& list, WPARAM after, LPARAM text)
{
    const std::size_t count = list.items.size();
    const std::size_t first = after < count ? after + 1 : 0;
    for (std::size_t i = 0; i < count; ++i)
    {
        const std::size_t index = (first + i) % count;
        if (equalNoCase(list.items[index].text, textAt(text)))
        {
            return LRESULT(index);
        }
    }
    return CB_ERR;
}

LRESULT textLength(const Window& list, WPARAM index)
{
    const ListItem* const item = itemAt(list, index);
    return item != nullptr ? LRESULT(item->text.size()) : CB_ERR;
}

// Copies the item's text. The buffer has no size here: the caller must have asked for the length.
LRESULT copyText(const Window& list, WPARAM index, LPARAM buffer)
{
    const ListItem* const item = itemAt(list, index);
    return item != nullptr
               ? copyCut(item->text, reinterpret_cast<LPWSTR>(buffer), item->text.size() + 1)
               : CB_ERR;
}

LRESULT getData(const Window& list, WPARAM index)
{
    const ListItem* const item = itemAt(list, index);
    return item != nullptr ? LRESULT(item->data) : CB_ERR;
}

LRESULT setData(Window& list, WPARAM index, LPARAM data)
{
    if (itemAt(list, index) == nullptr)
    {
        return CB_ERR;
    }
    list.items[index].data = DWORD_PTR(data);
    return 0;
}

// Answers messages about the list's text, which is the text of the selected item and cannot be set.
LRESULT textMessage(const Window& list, UINT message, WPARAM wParam, LPARAM lParam)
{
    const ListItem* const item = itemAt(list, WPARAM(list.selected));
    Window shown;
    shown.text = item != nullptr ? item->text : L"";
    return message == WM_SETTEXT ? CB_ERR : anyMessage(shown, message, wParam, lParam);
}
}  // namespace

LRESULT comboBoxMessage(Window& list, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
        case CB_ADDSTRING:
            return add(list, lParam);
        case CB_INSERTSTRING:
            return insertAt(list, wParam, lParam);
        case CB_DELETESTRING:
            return remove(list, wParam);
        case CB_RESETCONTENT:
            return clear(list);
        case CB_GETCOUNT:
            return LRESULT(list.items.size());
        case CB_GETCURSEL:
            return list.selected;
        case CB_SETCURSEL:
            return select(list, wParam);
        case CB_FINDSTRINGEXACT:
            return findExact(list, wParam, lParam);
        case CB_GETLBTEXTLEN:
            return textLength(list, wParam);
        case CB_GETLBTEXT:
            return copyText(list, wParam, lParam);
        case CB_GETITEMDATA:
            return getData(list, wParam);
        case CB_SETITEMDATA:
            return setData(list, wParam, lParam);
        default:
            return textMessage(list, message, wParam, lParam);
    }
}
}  // namespace host
