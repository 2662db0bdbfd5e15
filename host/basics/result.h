// What an operation gives that can fail with one line for the user.
#pragma once

#include <string>
#include <utility>
#include <variant>

namespace host
{
// Why an operation failed: one line in UTF-8 without its end. A line about a file begins with the
// file's name.
struct Failure
{
    std::string line;
};

// What an operation gives that has nothing but its success to tell.
struct Done
{
};

// Either a value or a failure, and never both. Whoever calls the operation has to look at it.
template <class T = Done>
class [[nodiscard]] Result
{
public:
    Result(T value) : m_content(std::in_place_index<0>, std::move(value)) {}
    Result(Failure failure) : m_content(std::in_place_index<1>, std::move(failure)) {}

    // True when there is a value.
    explicit operator bool() const { return m_content.index() == 0; }

    // The value. Only a success has one.
    T& operator*() { return *std::get_if<0>(&m_content); }
    const T& operator*() const { return *std::get_if<0>(&m_content); }
    T* operator->() { return std::get_if<0>(&m_content); }
    const T* operator->() const { return std::get_if<0>(&m_content); }

    // The failure, to show its line or to hand it on. Only a failure has one.
    const Failure& failure() const { return *std::get_if<1>(&m_content); }

private:
    std::variant<T, Failure> m_content;
};
}  // namespace host
