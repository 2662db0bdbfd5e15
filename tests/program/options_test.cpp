#include "host/program/options.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "host/runtime/locale.h"
#include "tests/support/scratchfolder.h"

namespace
{
using testing::HasSubstr;
using testing::StartsWith;

struct Parsed
{
    std::optional<host::Options> options;
    int status = -1;  // of the program, if there is nothing to run
    std::string output;
    std::string errors;
};

Parsed parse(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "arxhost");
    Parsed parsed;
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    parsed.options = host::parseOptions(std::move(arguments), parsed.status);
    parsed.output = testing::internal::GetCapturedStdout();
    parsed.errors = testing::internal::GetCapturedStderr();
    return parsed;
}

TEST(Options, areEmptyWithoutArgumentsButForTheModuleBesideTheProgram)
{
    const Parsed parsed = parse({});
    ASSERT_TRUE(parsed.options);
    EXPECT_EQ(parsed.options->drawing + parsed.options->script + parsed.options->save, "");
    EXPECT_EQ(parsed.options->plot + parsed.options->dialogPicture, "");
    EXPECT_EQ(parsed.options->locale, host::englishLocale);
    EXPECT_FALSE(parsed.options->trace || parsed.options->quiet);
    const auto program = std::filesystem::read_symlink("/proc/self/exe");
    EXPECT_EQ(parsed.options->module, program.parent_path() / "netrax.arx");
}

TEST(Options, areTakenInAnyOrder)
{
    const Parsed parsed =
        parse({"--quiet", "--save", "out.DXF", "site.dxf", "--locale=ru-RU", "--plot", "out.svg",
               "--script", "-", "--trace", "--module", "other.arx", "--dialog-picture", "d.png"});
    ASSERT_TRUE(parsed.options) << parsed.errors;
    EXPECT_EQ(parsed.options->drawing, "site.dxf");
    EXPECT_EQ(parsed.options->save, "out.DXF");
    EXPECT_EQ(parsed.options->plot, "out.svg");
    EXPECT_EQ(parsed.options->script, "-");
    EXPECT_EQ(parsed.options->module, "other.arx");
    EXPECT_EQ(parsed.options->dialogPicture, "d.png");
    EXPECT_EQ(parsed.options->locale, host::russianLocale);
    EXPECT_TRUE(parsed.options->trace && parsed.options->quiet);
}

TEST(Options, thatAskForHelpOrTheVersionArePrintedAndEndWell)
{
    const Parsed help = parse({"--help"});
    EXPECT_FALSE(help.options);
    EXPECT_EQ(help.status, 0);
    EXPECT_THAT(help.output, HasSubstr("--script"));
    const Parsed version = parse({"--version"});
    EXPECT_FALSE(version.options);
    EXPECT_EQ(version.status, 0);
    EXPECT_THAT(version.output, StartsWith("arxhost "));
}

struct Wrong
{
    std::vector<std::string> arguments;
    const char* says;
};

TEST(Options, thatMakeNoSenseAreRefusedWithStatus2AndALine)
{
    const Wrong wrongs[] = {
        {{"a.dxf", "b.dxf"}, "b.dxf"},
        {{"--colour"}, "--colour"},
        {{"--save"}, "--save"},
        {{""}, "expected a file's name"},
        {{"--save", ""}, "expected a file's name"},
        {{"--save", "out.dwg"}, "out.dwg: expected .dxf, as what is saved is DXF\n"},
        {{"--save", "dxf"}, "dxf: expected .dxf"},
        {{"--plot", "out.bmp"}, "out.bmp: expected .png, .pdf or .svg"},
        {{"--dialog-picture", "out.pdf"}, "out.pdf: expected .png\n"},
        {{"--locale", "de-DE"}, "de-DE"},
        {{"--script", "no/such/file"}, "no/such/file: no such script\n"},
        {{"--script", "/"}, "/: no such script\n"},
    };
    for (const Wrong& wrong : wrongs)
    {
        const Parsed parsed = parse(wrong.arguments);
        EXPECT_FALSE(parsed.options);
        EXPECT_EQ(parsed.status, 2);
        EXPECT_THAT(parsed.errors, HasSubstr(wrong.says));
        EXPECT_EQ(parsed.output, "");
    }
}

TEST(Options, mayNameADeviceOrAFolderToSaveInAndLeaveItToTheSaving)
{
    const std::filesystem::path folder = support::scratchFolder();
    for (const std::string& name : {std::string("/dev/stdout"), std::string("/dev/fd/7"),
                                    std::string("/dev/null"), folder.string()})
    {
        EXPECT_TRUE(parse({"--save", name}).options) << name;
    }
    std::ofstream(folder / "notes.txt") << "a file";
    EXPECT_FALSE(parse({"--save", (folder / "notes.txt").string()}).options);
    std::filesystem::remove_all(folder);
}
}  // namespace
