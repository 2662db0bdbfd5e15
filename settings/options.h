// The options that the settings file keeps, each described once. The record takes its defaults from
// this table, the file its keys, the dialog its controls.
//
// A new option is a member of GridSettings, a row here and a control in the dialog's template.
#pragma once

#include "settings/gridsettings.h"

// How a control of the dialog shows an option.
enum ControlKind
{
    editControl,   // as text
    checkedAtOne,  // a check box or the second of two radio buttons, on for 1 and for nothing else
    checkedNotZero,  // the same, on for everything but 0
    listControl      // in a way of its own, which the dialog knows
};

// Standard is the type in which the table holds a default.
template <class Value, class Standard>
struct Option
{
    const wchar_t* key;           // in the settings file
    Value GridSettings::*member;  // lengths in drawing units
    Standard standard;            // the default
    int control;                  // in the dialog
    ControlKind kind;
    bool isOfLabels;  // the control is enabled only while labels are wanted
};

typedef Option<int, int> IntOption;
typedef Option<double, double> RealOption;
typedef Option<CString, const wchar_t*> TextOption;

template <class Row>
struct Rows
{
    const Row* begin;
    const Row* end;
};

// [borrowed] for good.
Rows<IntOption> intOptions();
Rows<RealOption> realOptions();
Rows<TextOption> textOptions();

template <class Row, class Action>
void forEachRow(const Rows<Row>& rows, const Action& action)
{
    for (const Row* row = rows.begin; row != rows.end; ++row)
    {
        action(*row);
    }
}

// Calls action(row) for the row of every option; the type of the row is that of its table.
template <class Action>
void forEachOption(const Action& action)
{
    forEachRow(intOptions(), action);
    forEachRow(realOptions(), action);
    forEachRow(textOptions(), action);
}
