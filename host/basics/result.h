// The result of an operation that can fail with one line for the user.
#pragma once

#include <string>
#include <utility>
#include <variant>

namespace host
{
// The reason why an operation failed: one line in UTF-8, without a line ending. A line about a file
// begins with the file's name.
struct Failure
{
    std::string line;
};

// The value of an operation that reports only its success.
struct Done
{
};

// Holds either a value or a failure. The caller must look at the result.
template <class T = Done>
class [[nodiscard]] Result
{
public:
    Result(T value) : m_content(std::in_place_index<0>, std::move(value)) {}
    Result(Failure failure) : m_content(std::in_place_index<1>, std::move(failure)) {}

    // Returns true if there is a value.
    explicit operator bool() const { return m_content.index() == 0; }

    // Return the value [borrowed], which is good as long as the result. The result must be a
    // success.
    T& operator*() { return *std::get_if<0>(&m_content); }
    const T& operator*() const { return *std::get_if<0>(&m_content); }
    T* operator->() { return std::get_if<0>(&m_content); }
    const T* operator->() const { return std::get_if<0>(&m_content); }

    // Returns the failure [borrowed], to show its line or to pass it on. The result must be a
    // failure.
    const Failure& failure() const { return *std::get_if<1>(&m_content); }

private:
    std::variant<T, Failure> m_content;
};
}  // namespace host
