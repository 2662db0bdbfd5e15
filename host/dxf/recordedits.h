// Changes of records that stand in the file.
#pragma once

#include <map>
#include <variant>

#include "host/dxf/edits.h"
#include "host/dxf/owntags.h"
#include "host/dxf/recordwriter.h"

namespace host::dxf
{
// The numbers of a record by their codes. Names and handles are never changed.
class RecordNumbers
{
public:
    using Number = std::variant<std::int64_t, double>;

    template <class Table>
    RecordNumbers(const Table& table, const typename Table::RecordType& record,
                  const FileForm& form)
    {
        writeRecord(*this, table, record, form);
    }

    void text(Code, std::string_view) {}
    void handle(Code, schema::Handle) {}
    void integer(Code code, std::int64_t value) { m_numbers[code] = value; }
    void real(Code code, double value) { m_numbers[code] = value; }
    void point(Code code, double x, double y);
    void point(Code code, double x, double y, double z);

    const std::map<Code, Number>& all() const { return m_numbers; }

private:
    std::map<Code, Number> m_numbers;
};

// Sets what differs between the two in the record; what that lacks goes to the end of its own
// tags, by the codes' order.
void saveChanges(Edits& edits, const Record& record, const RecordNumbers& before,
                 const RecordNumbers& now);
}  // namespace host::dxf
