#include "tests/output/unnamed.h"

#include <optional>

#include "tests/app/original.h"

namespace
{
std::optional<Acad::ErrorStatus> current;
}

tests::Unnamed::Unnamed(Acad::ErrorStatus status)
{
    current = status;
}

tests::Unnamed::~Unnamed()
{
    current.reset();
}

// In the place of the host's in the whole test program.
Acad::ErrorStatus AcDbSymbolTableRecord::getName(ACHAR*& name) const
{
    using Function = Acad::ErrorStatus(const AcDbSymbolTableRecord*, ACHAR*&);
    return current ? *current
                   : original<Function>("_ZNK21AcDbSymbolTableRecord7getNameERPw")(this, name);
}

Acad::ErrorStatus AcDbSymbolTableRecord::getName(const ACHAR*& name) const
{
    using Function = Acad::ErrorStatus(const AcDbSymbolTableRecord*, const ACHAR*&);
    return current ? *current
                   : original<Function>("_ZNK21AcDbSymbolTableRecord7getNameERPKw")(this, name);
}
