#include "host/png/windows/drawing.h"

namespace host
{
namespace
{
struct Releasing
{
    void operator()(IUnknown* object) const { object->Release(); }
};

const CLSID pngEncoder = {
    0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

const Failure noMemory{"not enough memory"};

Result<std::string> bytesOf(IStream& stream)
{
    HGLOBAL memory = nullptr;
    STATSTG state;
    if (GetHGlobalFromStream(&stream, &memory) != S_OK ||
        stream.Stat(&state, STATFLAG_NONAME) != S_OK)
    {
        return noMemory;
    }
    std::string bytes(static_cast<const char*>(GlobalLock(memory)), state.cbSize.QuadPart);
    GlobalUnlock(memory);
    return bytes;
}
}  // namespace

Result<std::string> pngOf(Gdiplus::Bitmap& bitmap)
{
    IStream* made = nullptr;
    if (CreateStreamOnHGlobal(nullptr, TRUE, &made) != S_OK)
    {
        return noMemory;
    }
    const std::unique_ptr<IStream, Releasing> stream(made);
    const bool isWritten = bitmap.Save(stream.get(), &pngEncoder, nullptr) == Gdiplus::Ok;
    return isWritten ? bytesOf(*stream) : noMemory;
}
}  // namespace host
