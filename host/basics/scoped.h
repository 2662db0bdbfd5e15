// Changes a variable for the length of a scope.
#pragma once

#include <utility>

namespace host
{
// Gives a variable another value and restores the former one at the end of the scope, however the
// scope ends.
template <class T>
class Scoped
{
public:
    Scoped(T& variable, T value)  // `variable` is [borrowed] and outlives the scope
        : m_variable(variable), m_former(std::exchange(variable, std::move(value)))
    {
    }
    ~Scoped() { m_variable = std::move(m_former); }
    Scoped(const Scoped&) = delete;
    Scoped& operator=(const Scoped&) = delete;

private:
    T& m_variable;
    T m_former;
};
}  // namespace host
