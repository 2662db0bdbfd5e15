// Records the calls that the application object makes to the host.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "hostapi/host.h"

// Receives the application's calls in place of the host while it lives. Only one object may exist
// at a time.
class HostCalls
{
public:
    HostCalls();
    ~HostCalls();
    HostCalls(const HostCalls&) = delete;
    HostCalls& operator=(const HostCalls&) = delete;

    // Returns the calls since the last take, each as "name argument argument...".
    std::vector<std::wstring> take();
    void note(const std::wstring& call) { m_calls.push_back(call); }

    bool registryIsEmpty = false;
    int functionCode = -1;                     // the answer of acedGetFunCode
    std::map<unsigned, std::wstring> strings;  // the texts that LoadStringW returns
    std::vector<AcApDocManagerReactor*>
        reactors;  // the reactors that were added to the document manager
    bool documentManagerIsMissing = false;
    bool extensionModulesAreRefused = false;

private:
    std::vector<std::wstring> m_calls;
};
