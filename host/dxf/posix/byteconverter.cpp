#include "host/dxf/byteconverter.h"

#include <iconv.h>

namespace host::dxf
{
namespace
{
class IconvConverter : public ByteConverter
{
public:
    explicit IconvConverter(const char* codePage)
        : m_decoder(::iconv_open("UTF-32LE", codePage)),
          m_encoder(::iconv_open(codePage, "UTF-32LE"))
    {
    }
    ~IconvConverter() override
    {
        close(m_decoder);
        close(m_encoder);
    }
    IconvConverter(const IconvConverter&) = delete;
    IconvConverter& operator=(const IconvConverter&) = delete;

    bool isOpen() const { return isOpen(m_decoder) && isOpen(m_encoder); }
    std::size_t decode(std::string_view bytes, std::u32string& text) override;
    std::optional<std::string> encode(char32_t character) override;

private:
    static bool isOpen(iconv_t converter) { return converter != iconv_t(-1); }
    static void close(iconv_t converter)
    {
        if (isOpen(converter))
        {
            ::iconv_close(converter);
        }
    }

    iconv_t m_decoder;
    iconv_t m_encoder;
};

std::size_t IconvConverter::decode(std::string_view bytes, std::u32string& text)
{
    const std::size_t before = text.size();
    text.resize(before + bytes.size());
    char* in = const_cast<char*>(bytes.data());
    std::size_t inLeft = bytes.size();
    char* out = reinterpret_cast<char*>(text.data() + before);
    std::size_t outLeft = bytes.size() * sizeof(char32_t);
    ::iconv(m_decoder, &in, &inLeft, &out, &outLeft);
    // Converters of some code pages hold a letter back until they know whether an accent follows.
    ::iconv(m_decoder, nullptr, nullptr, &out, &outLeft);
    text.resize(text.size() - outLeft / sizeof(char32_t));
    return bytes.size() - inLeft;
}

std::optional<std::string> IconvConverter::encode(char32_t character)
{
    char converted[8];
    char* in = reinterpret_cast<char*>(&character);
    std::size_t inLeft = sizeof character;
    char* out = converted;
    std::size_t outLeft = sizeof converted;
    if (::iconv(m_encoder, &in, &inLeft, &out, &outLeft) != 0)
    {
        return std::nullopt;
    }
    return std::string(converted, out);
}
}  // namespace

std::unique_ptr<ByteConverter> ByteConverter::open(const std::string& codePage)
{
    auto converter = std::make_unique<IconvConverter>(codePage.c_str());
    return converter->isOpen() ? std::move(converter) : nullptr;
}
}  // namespace host::dxf
