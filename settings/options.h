// Describes each option of the settings file once. The record takes its defaults from these tables,
// the file takes its keys, and the dialog takes its controls.
//
// A new option needs a member of GridSettings, a row in options.cpp and a control in the template
// of the dialog.
#pragma once

#include "settings/gridsettings.h"

// The ways in which a control of the dialog shows an option.
enum ControlKind
{
    editControl,     // an edit that shows text
    checkedAtOne,    // a check box or the second of two radio buttons, checked only for 1
    checkedNotZero,  // the same control, checked for every value except 0
    listControl      // a list; the dialog has separate code for each list
};

// One option. Value is the type of its member, Standard the type in which the table holds the
// default.
template <class Value, class Standard>
struct Option
{
    const wchar_t* key;           // the key in the settings file
    Value GridSettings::*member;  // lengths are in drawing units
    Standard standard;            // the default
    int control;                  // the id of the control in the dialog
    ControlKind kind;
    bool isOfLabels;  // the control is enabled only while labels are wanted
};

typedef Option<int, int> IntOption;
typedef Option<double, double> RealOption;
typedef Option<CString, const wchar_t*> TextOption;

// The rows of one table [borrowed].
template <class Row>
struct Rows
{
    const Row* begin;
    const Row* end;
};

// Return the rows of the options with whole numbers, real numbers and texts. The rows are
// [borrowed] as long as the module is loaded.
Rows<IntOption> intOptions();
Rows<RealOption> realOptions();
Rows<TextOption> textOptions();

// Calls action(row) for each row.
template <class Row, class Action>
void forEachRow(const Rows<Row>& rows, const Action& action)
{
    for (const Row* row = rows.begin; row != rows.end; ++row)
    {
        action(*row);
    }
}

// Calls action(row) for the row of every option. The type of a row depends on its table.
template <class Action>
void forEachOption(const Action& action)
{
    forEachRow(intOptions(), action);
    forEachRow(realOptions(), action);
    forEachRow(textOptions(), action);
}
