#!/usr/bin/python3
"""Every rule of the interface that the host watches stops a module that breaks it.

A row is a module, what is typed and the beginning of the one line that names the breach. The sources of
the host are searched for breaches as well: one without a row fails.
"""
import re
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "support"))
from arxhost import ROOT, Desk, need_built  # noqa: E402
from report import add, expect, expect_equal, run_all  # noqa: E402

PICK = "click 12"  # the button of the panel
NOT_BACK = "BeginEditorCommand: there was no CompleteEditorCommand"
RULES = [
    ("commands", ["DELETE"], "AcDbObject::~AcDbObject: an object that belongs to a database was deleted"),
    ("commands", ["USECLOSED"], "AcDbObject::upgradeOpen: the AcDbText * is not open\n"),
    ("commands", ["WRITEREAD"], "AcDbEntity::setColorIndex: the AcDbText * is not open for write"),
    ("commands", ["CLOSETWICE"], "AcDbObject::close: the AcDbText * is already closed"),
    ("commands", ["LEAVEOPEN"], "LEAVEOPEN: the AcDbText * was left open"),
    ("commands", ["PASTTHEEND"], "AcArray::first: index 0 is not below 0"),
    ("commands", ["TOOMUCH"], "AcArray: out of memory"),
    ("commands", ["PUSHKEEP"], "pushResourceHandle: PUSHKEEP did not leave the resource handles as they were"),
    ("commands", ["POPLENT"], "popResourceHandle: POPLENT did not leave the resource handles as they were"),
    ("commands", ["PUSHNOBODY"], "pushResourceHandle: the handle is that of no loaded module"),
    ("commands", ["PUSHLATE"], "pushResourceHandle: there is no document"),
    ("commands", ["POPNOTHING"], "popResourceHandle: no resource handle was pushed"),
    ("commands", ["POPLATE"], "popResourceHandle: there is no document"),
    ("commands", ["UNLOCK"], "unlockDocument: the document is not locked"),
    ("commands", ["KEEPMETER"], "acedSetStatusBarProgressMeter: KEEPMETER did not restore the status bar"),
    ("commands", ["ASKFOREVER"], "ASKFOREVER: asks again and again although it is cancelled"),
    ("commands", ["LINKEARLY"], "CDynLinkLibrary: made before AfxInitExtensionModule"),
    ("commands", ["BYHAND"], "DllMain: refused to attach a module that no loader can give up"),
    ("dialogs", ["ASKUNDER", PICK], "acedGetPoint: asked while a dialog is shown, without BeginEditorCommand"),
    ("dialogs", ["DESTROY", PICK], "DestroyWindow: a dialog that is shown ends with EndDialog"),
    ("dialogs", ["ASIDE", PICK], NOT_BACK),
    ("dialogs", ["ENDASIDE"], NOT_BACK),
    ("dialogs", ["HIDE", PICK], "CDialog::DoModal: the dialog is hidden and cannot be answered"),
    ("dialogs", ["ASIDETWICE", PICK], "BeginEditorCommand: called again before CompleteEditorCommand"),
    ("dialogs", ["COMEBACK", PICK], "CompleteEditorCommand: called without BeginEditorCommand"),
    ("dialogs", ["CANCEL", PICK], "CancelEditorCommand: called without BeginEditorCommand"),
    ("dialogs", ["EXCHANGE"], "DDX_Control: the dialog has no control 999"),
    ("dialogs", ["NOWINDOW"], "CWnd::SetWindowText: the object stands for no window"),
    ("dialogs", ["ATTACHOTHER", PICK], "CWnd::Attach: the object stands for another window"),
    ("dialogs", ["ATTACHTAKEN", PICK], "CWnd::Attach: another object stands for the window"),
    ("dialogs", ["DIALOGATEND"], "CDialog::DoModal: nobody sits at a command line"),
    ("outsider", ["DIALOG"], "CAdUiBaseDialog: made before InitAcUiDLL"),
    ("outsider", ["LIBRARY"], "InitAcUiDLL: called before the module joined the resource chain"),
    ("tornresources", [], "FindResourceW: the module's resources are not whole"),
    ("staysinchain", ["ARX", "U", "staysinchain"], "AfxTermExtensionModule: not called before the module left"),
    ("leavescommand", ["ARX", "U", "leavescommand"],
     "kUnloadAppMsg: leavescommand.arx did not remove a command that it had registered"),
    ("leavesreactor", ["ARX", "U", "leavesreactor"],
     "removeReactor: leavesreactor.arx left a document reactor behind"),
    ("listensandrefuses", [], "removeReactor: listensandrefuses.arx left a document reactor behind"),
]


def module_file(name):
    own = ROOT / "build" / "breach_modules" / f"{name}.arx"
    return own if own.exists() else ROOT / "build" / "test_modules" / own.name  # one of the loader's tests


def stops_the_run(module, lines, wanted):
    pattern = re.escape(f"arxhost: {wanted}").replace(r"\*", "[^\n]*")
    with Desk() as desk:
        run = desk.run("--save", "saved.dxf", module=module_file(module), script="".join(f"{l}\n" for l in lines),
                       timeout=30)
        line = run.errors.splitlines(keepends=True)[-1:]
        expect(bool(line) and re.match(pattern, line[0]), f"standard error: {run.errors!r}")
        expect_equal(run.status, 1, "exit status")


def breaches():
    """Of each breach in the host's sources its texts, as (file, texts)."""
    for path in sorted((ROOT / "host").rglob("*.cpp")):
        for call in re.findall(r"\bbreach\(([^;{]*)\);", path.read_text(encoding="utf-8-sig")):
            yield path.relative_to(ROOT), re.findall(r'"([^"]*)"', call)


def every_breach_has_a_row():
    rows = [wanted for _, _, wanted in RULES]
    found = list(breaches())
    expect(len(found) > 30, f"only {len(found)} breaches were found: how are they written now?")
    for file, texts in found:
        longest = max(texts, key=len)
        matching = next((row for row in rows if longest.strip() in row), None)
        expect(matching, f"no module breaks the rule {longest!r} of {file}")
        if len(texts) == 2:  # a plain call and what is wrong, so two breaches that differ have two rows
            rows_of_call = [row for row in rows if longest.strip() in row and texts[0] in row]
            expect(rows_of_call, f"no module breaks the rule {': '.join(texts)!r} of {file}")


def main():
    need_built()
    for module, lines, wanted in RULES:
        add(f"{module} {' '.join(lines)}", stops_the_run, module, lines, wanted)
    add("every breach has a row", every_breach_has_a_row)
    run_all()


if __name__ == "__main__":
    main()
