#include "host/documents/ucshistory.h"

namespace host
{
void UcsHistory::push(const DrawingState& state)
{
    std::vector<Ucs>& list = of(state);
    if (list.size() == limit)
    {
        list.erase(list.begin());
    }
    list.push_back(state.ucs());
}

bool UcsHistory::pop(const DrawingState& state, Ucs& former)
{
    std::vector<Ucs>& list = of(state);
    if (list.empty())
    {
        return false;
    }
    former = list.back();
    list.pop_back();
    return true;
}
}  // namespace host
