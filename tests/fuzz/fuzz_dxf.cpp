// The entry of libFuzzer, which brings the program around it.
#include <cstdio>
#include <cstdlib>

#include "tests/fuzz/dxfproperties.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string complaint =
        tests::complaintAbout({reinterpret_cast<const char*>(data), size});
    if (!complaint.empty())
    {
        std::fprintf(stderr, "%s\n", complaint.c_str());
        std::abort();
    }
    return 0;
}
