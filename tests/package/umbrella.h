// Replaces the headers of the real host where they contain more than the module requests: classes
// with the names of its own classes, and Windows' macros that look like plain names.
// check_objectarx.py puts it before each file of the module when it compiles the file.
#include <algorithm>
#include <cmath>
#include <cwchar>
#include <iterator>
#include <map>
#include <memory>
#include <vector>

#include "hostapi/host.h"

// Other base classes of application objects, with other members.
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
