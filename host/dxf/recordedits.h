// Changes records that the file already has.
#pragma once

#include <map>
#include <variant>

#include "host/dxf/edits.h"
#include "host/dxf/owntags.h"
#include "host/dxf/recordwriter.h"

namespace host::dxf
{
// The numbers of a record by their group codes. Names and handles are left out, because they never
// change. The map is [borrowed] as long as this object lives.
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

// Sets the numbers of the record that differ between `before` and `now`. A number whose tag the
// record lacks is added at the end of the record's own tags, in the order of the codes.
void saveChanges(Edits& edits, const Record& record, const RecordNumbers& before,
                 const RecordNumbers& now);
}  // namespace host::dxf
