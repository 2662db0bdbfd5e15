// The host as the application object sees it, with every call written down.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "hostapi/host.h"

// While it lives, the calls below go to it instead of the host; one at a time.
class HostCalls
{
public:
    HostCalls();
    ~HostCalls();
    HostCalls(const HostCalls&) = delete;
    HostCalls& operator=(const HostCalls&) = delete;

    // The calls since the last take, each as "name argument argument...".
    std::vector<std::wstring> take();
    void note(const std::wstring& call) { m_calls.push_back(call); }

    bool registryIsEmpty = false;
    int functionCode = -1;                         // answer of acedGetFunCode
    std::map<unsigned, std::wstring> strings;      // of LoadStringW
    std::vector<AcApDocManagerReactor*> reactors;  // of the document manager
    bool documentManagerIsMissing = false;
    bool extensionModulesAreRefused = false;

private:
    std::vector<std::wstring> m_calls;
};
