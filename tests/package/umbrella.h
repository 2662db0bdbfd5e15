// Stands in for the headers of the real host where they bring more than the module asks for:
// classes under the names of its own, and Windows' macros that look like plain names. It comes
// before each file of the module when check_objectarx.py compiles it.
#include <algorithm>
#include <cmath>
#include <cwchar>
#include <iterator>
#include <map>
#include <memory>
#include <vector>

#include "hostapi/host.h"

// Another frame for application objects, with other members.
class AcRxDbxApp
{
public:
    virtual ~AcRxDbxApp() {}
    virtual AcRx::AppRetCode initApp(void* packet, int level) = 0;
    virtual void registerComponents(int) = 0;
};

class AcRxArxApp : public AcRxDbxApp
{
public:
    virtual void registerComponents(const ACHAR*) = 0;
};

template <class Data, int capacity>
class AcApDataManager : public AcApDocManagerReactor
{
public:
    Data& docData(AcApDocument* document);
};

extern AcRxDbxApp* theApp;

#define min(left, right) (((left) < (right)) ? (left) : (right))
#define max(left, right) (((left) > (right)) ? (left) : (right))
#define near
#define far
#define pascal
#define small char
#define interface struct
#define IN
#define OUT
#define OPTIONAL
#define ERROR 0
