#include <gtest/gtest.h>

#include <string>

#include "app/rxapp.h"

namespace
{
class LoggingApp : public netrax::AcRxDbxApp
{
public:
    AcRx::AppRetCode initApp(void* packet) override { return log("initApp", packet); }
    AcRx::AppRetCode unloadApp(void* packet) override { return log("unloadApp", packet); }
    AcRx::AppRetCode loadDrawing(void* packet) override { return log("loadDrawing", packet); }
    AcRx::AppRetCode unloadDrawing(void* packet) override { return log("unloadDrawing", packet); }
    AcRx::AppRetCode invokeFunction(void* packet) override { return log("invokeFunction", packet); }
    AcRx::AppRetCode configure(void* packet) override { return log("configure", packet); }
    AcRx::AppRetCode end(void* packet) override { return log("end", packet); }
    AcRx::AppRetCode quit(void* packet) override { return log("quit", packet); }
    AcRx::AppRetCode save(void* packet) override { return log("save", packet); }
    AcRx::AppRetCode dependency(void* packet) override { return log("dependency", packet); }
    AcRx::AppRetCode noDependency(void* packet) override { return log("noDependency", packet); }
    AcRx::AppRetCode oleUnload(void* packet) override { return log("oleUnload", packet); }
    AcRx::AppRetCode preQuit(void* packet) override { return log("preQuit", packet); }
    AcRx::AppRetCode initDialog(void* packet) override { return log("initDialog", packet); }
    AcRx::AppRetCode endDialog(void* packet) override { return log("endDialog", packet); }
    AcRx::AppRetCode nullMessage(void* packet) override { return log("nullMessage", packet); }
    void registerComponents() override { called = "registerComponents"; }

    std::string called;
    void* packet = nullptr;

private:
    AcRx::AppRetCode log(const char* handler, void* given)
    {
        called = handler;
        packet = given;
        return AcRx::kRetError;
    }
};

TEST(AppMessages, goToTheHandlerOfTheirCodeAndGiveItsResult)
{
    const char* const handlers[] = {
        "nullMessage", "initApp", "unloadApp",  "loadDrawing", "unloadDrawing", "invokeFunction",
        "configure",   "end",     "quit",       "save",        "dependency",    "noDependency",
        "oleUnload",   "preQuit", "initDialog", "endDialog",
    };
    int code = 0;
    for (const char* handler : handlers)
    {
        LoggingApp app;
        int packet = 0;
        EXPECT_EQ(dispatch(app, static_cast<AcRx::AppMsgCode>(code), &packet), AcRx::kRetError);
        EXPECT_EQ(app.called, handler) << code;
        EXPECT_EQ(app.packet, &packet) << code;
        ++code;
    }
    EXPECT_EQ(code, 16);
}

TEST(AppMessages, unknownCodesAreFineAndReachNobody)
{
    for (int code : {16, 17, 255, 0x10000, -1})
    {
        LoggingApp app;
        EXPECT_EQ(dispatch(app, static_cast<AcRx::AppMsgCode>(code), nullptr), AcRx::kRetOK);
        EXPECT_EQ(app.called, "") << code;
    }
}
}  // namespace
