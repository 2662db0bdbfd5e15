#include "host/png/windows/drawing.h"

namespace host
{
namespace
{
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
    IStream* stream = nullptr;
    if (CreateStreamOnHGlobal(nullptr, TRUE, &stream) != S_OK)
    {
        return noMemory;
    }
    const bool isWritten = bitmap.Save(stream, &pngEncoder, nullptr) == Gdiplus::Ok;
    Result<std::string> bytes = isWritten ? bytesOf(*stream) : noMemory;
    stream->Release();
    return bytes;
}
}  // namespace host
