// The objects of which every drawing has exactly one.
#pragma once

#include <array>
#include <cstddef>

class AcDbStub;

namespace host
{
enum class Root
{
    blockTable,
    layerTable,
    linetypeTable,
    textStyleTable,
    groupDictionary,
    modelSpace
};

// The pointers are [borrowed] and null until the drawing is loaded. Nothing changes them
// afterwards.
class RootObjects
{
public:
    AcDbStub* operator[](Root root) const { return m_stubs[std::size_t(root)]; }
    void set(Root root, AcDbStub* stub) { m_stubs[std::size_t(root)] = stub; }

private:
    std::array<AcDbStub*, std::size_t(Root::modelSpace) + 1> m_stubs{};
};
}  // namespace host
