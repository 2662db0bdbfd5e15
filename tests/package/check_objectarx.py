#!/usr/bin/python3
"""Checks what can be checked without Visual C++ and the ObjectARX SDK of the module's build with them."""
import json
import re
import shutil
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "support"))
from arxhost import ROOT, need_built  # noqa: E402
from report import check, expect, expect_equal, run_all  # noqa: E402

FOLDERS = ["app", "command", "engine", "hostapi", "output", "settings"]
# Headers that the SDK, MFC and Windows bring, as their makers spell them.
SDK = """acadapp.h acadstrc.h acarray.h accmd.h acdb.h acdocman.h aced.h acedads.h acui.h acuiComboBox.h
acuiDialog.h acutads.h acutmem.h adesk.h adscodes.h adsdef.h adslib.h adui.h aduiButton.h aduiDialog.h
axlock.h dbMPolygon.h dbapserv.h dbcurve.h dbdict.h dbents.h dbgroup.h dbid.h dbidar.h
dbmain.h dbobjptr.h dbsymtb.h dbxutil.h geassign.h gedblar.h gegbl.h geintarr.h gelnsg3d.h gemat3d.h
geplane.h gepnt3d.h gepnt3da.h getol.h gevec3d.h rxclass.h rxdefs.h rxdict.h rxdlinkr.h rxmfcapi.h rxobject.h
rxregsvc.h rxsrvice.h""".split()
MFC = """afx.h afxcmn.h afxdd_.h afxdisp.h afxdlgs.h afxdllx.h afxext.h afxmsg_.h afxole.h afxres.h afxstr.h
afxwin.h""".split()
WINDOWS = "shlwapi.h tchar.h windows.h winuser.h".split()
SYSTEM_FOLDERS = [Path("/usr/x86_64-w64-mingw32/include"), *Path("/usr/include/c++").iterdir()]

# Imports of the module that no published header declares: what the embedded host's own macros and
# templates call, and what compilers call by themselves.
HOSTS_OWN = re.compile(r"""host::|acdbOpenOfClass\(|AcDbObjectId\ acdbTableIdFor<|acArray\w+Breach|acDocManagerPtr
    |AcHeapOperators::operator\ new\(
    |.*::desc\(\)$|crt(Fgetwc|Fwprintf|Wctomb)$|AcDbSymbolTable(Iterator)?::(fillIterator|openAt|openRecord)\(""", re.X)
# Bases of classes of the module or of the host's inline constructors, and MFC's message maps.
COMPILERS_OWN = re.compile(r"""(vtable|typeinfo|VTT)\ for\ |.*::~|__|_ITM_|operator\ (new|delete)|AcDbEntity::AcDbEntity\(\)$
    |.*::GetThisMessageMap\(\)$|.*::GetMessageMap\(\)\ const$|CWnd::(DoDataExchange|OnCommand)\(
    |CDialog::On(OK|Cancel)\(\)$|CAdUiBaseDialog::DoModal\(\)$""", re.X)
# The published ones differ in what no call notices: a further argument with a default, no const.
CALLED_ALIKE = ["AfxTermExtensionModule(AFX_EXTENSION_MODULE&)",
                "CAcUiColorComboBox::GetCurrentItemColorIndex() const"]


def run(*command, given=None):
    return subprocess.run(list(map(str, command)), input=given, capture_output=True, text=True, check=False)


def module_files():
    return sorted(path for folder in FOLDERS for path in (ROOT / folder).iterdir() if path.suffix in (".h", ".cpp"))


def included(path):
    return re.findall(r'^\s*#\s*include\s*"([^"]+)"', path.read_text(encoding="utf-8-sig"), re.M)


@check
def the_module_includes_only_what_the_real_headers_are_called():
    known = {*SDK, *MFC, *WINDOWS}
    strange = [f"{path.relative_to(ROOT)}: {name}" for path in module_files() for name in included(path)
               if name not in known and not (ROOT / name).exists()]
    expect_equal(strange, [], "headers that neither the SDK nor we have")


@check
def the_module_takes_mfc_whole_and_first_and_the_host_header_by_header():
    """The host's dialogs derive from all over MFC; its umbrella brings names that are ours."""
    names = included(ROOT / "hostapi" / "host.h")
    expect_equal(names[:6], ["afxwin.h", "afxext.h", "afxcmn.h", "afxdlgs.h", "afxole.h", "afxdisp.h"], "first headers")
    umbrellas = [str(path.relative_to(ROOT)) for path in module_files() if "arxHeaders.h" in included(path)]
    expect_equal(umbrellas, [], "files that include the umbrella")


@check
def the_embedded_hosts_headers_have_the_real_names_but_one():
    ours = {path.name for path in (ROOT / "host" / "sdk").glob("*.h")}
    expect_equal(ours - {*SDK, *MFC, *WINDOWS}, {"crt.h"} & ours, "names that the SDK does not have")


@check
def no_header_of_ours_is_found_in_place_of_a_real_one():
    """Visual C++ looks for a quoted name in the folders of all files that are open, in any case."""
    real = {*SDK, *MFC, *WINDOWS}
    for folder in SYSTEM_FOLDERS:
        expect(folder.is_dir(), f"{folder} is missing")
        real |= {path.name for path in folder.iterdir() if path.is_file()}
    real = {name.lower() for name in real}
    ours = [path for folder in [*FOLDERS, "resources", "."] for path in (ROOT / folder).glob("*.h")]
    expect(len(ours) > 20, "our headers were not found")
    hiding = [str(path.relative_to(ROOT)) for path in ours if path.name.lower() in real]
    expect_equal(hiding, [], "headers with the name of a real one")


def host_folders():
    folders = [ROOT / "host" / "sdk", ROOT / "host" / "windows" / "emulated" / "include"]
    return [part for folder in folders if folder.is_dir() for part in ("-isystem", folder)]


class CrowdedHost:
    """A host whose headers bring the names of umbrella.h too, read once for all files."""

    OPTIONS = ["-std=c++11", "-Wall", "-Wextra", "-Werror", "-I", ROOT, *host_folders()]

    def __init__(self, folder):
        self._umbrella = Path(folder) / "umbrella.h"
        shutil.copy(ROOT / "tests" / "package" / "umbrella.h", self._umbrella)
        made = run("c++", *self.OPTIONS, "-x", "c++-header", self._umbrella, "-o", f"{self._umbrella}.gch")
        expect_equal(made.returncode, 0, made.stderr)

    def complaints(self, *files):
        """What the compiler says of the files of ours, all in one."""
        source = "".join(f'#include "{path.relative_to(ROOT)}"\n' for path in files)
        return run("c++", *self.OPTIONS, "-fsyntax-only", "-include", self._umbrella, "-x", "c++", "-",
                   given=source).stderr


@check
def every_file_compiles_alone_where_the_host_brings_classes_of_the_same_names():
    with tempfile.TemporaryDirectory() as folder:
        host = CrowdedHost(folder)
        with ThreadPoolExecutor(2) as pool:
            said = list(pool.map(host.complaints, module_files()))
    expect(len(said) > 70, f"only {len(said)} files were found")
    expect_equal([text for text in said if text], [], "complaints")


@check
def all_sources_compile_as_one_in_either_order():
    """Builds that put sources together, for speed, put them together in an order of their own."""
    sources = [path for path in module_files() if path.suffix == ".cpp"]
    with tempfile.TemporaryDirectory() as folder:
        host = CrowdedHost(folder)
        for files in (sources, sources[::-1]):
            expect_equal(host.complaints(*files), "", "complaints")


def configure(folder, *arguments):
    return run("cmake", "-S", ROOT / "cmake" / "objectarx", "-B", folder / "build", "-G", "Ninja",
               "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON", *arguments)


def rules_in(folder):
    return (folder / "build" / "build.ninja").read_text()


def made_sdk(folder):
    for name in ("inc", "inc-x64", "lib-x64"):
        (folder / "sdk" / name).mkdir(parents=True)
    return folder / "sdk"


@check
def the_build_takes_every_source_and_no_header_of_the_embedded_host():
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name).resolve()
        sdk = made_sdk(folder)
        done = configure(folder, f"-DOBJECTARX_SDK={sdk}")
        expect_equal(done.returncode, 0, done.stderr)
        commands = json.loads((folder / "build" / "compile_commands.json").read_text())
        rules = rules_in(folder)
    wanted = {str(path) for path in module_files() if path.suffix == ".cpp"}
    expect_equal({entry["file"] for entry in commands}, wanted, "sources")
    paths = {tuple(re.findall(r"-(?:I|isystem ?)(\S+)", entry["command"])) for entry in commands}
    expect_equal(paths, {(str(ROOT), f"{sdk}/inc", f"{sdk}/inc-x64")}, "include folders")
    for word in ("UNICODE", "_UNICODE", "_AFXDLL", "_AFXEXT", "_WIN32_WINNT=0x0601"):
        expect(all(f"-D{word} " in entry["command"] for entry in commands), f"{word} is not defined")
    for library in ("rxapi", "accore", "acad", "acdb19", "acge19", "acui19", "adui19", "axdb", "shlwapi"):
        expect(f"-l{library} " in rules or f"-l{library}\n" in rules, f"{library} is not linked")
    expect(" netrax.arx" in rules, "no netrax.arx is made")


@check
def the_resource_compiler_is_told_where_the_header_and_the_picture_are():
    rule = ("<CMAKE_RC_COMPILER> <INCLUDES> --preprocessor=c++ --preprocessor-arg=-E --preprocessor-arg=-xc-header "
            "--preprocessor-arg=-DRC_INVOKED -O coff <SOURCE> <OBJECT>")
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name).resolve()
        language = folder / "language.cmake"
        language.write_text(f'set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)\n'
                            f'set(CMAKE_RC_COMPILE_OBJECT "{rule}")\nenable_language(RC)\n')
        done = configure(folder, f"-DOBJECTARX_SDK={made_sdk(folder)}", f"-DCMAKE_PROJECT_INCLUDE={language}")
        expect_equal(done.returncode, 0, done.stderr)
        step = re.search(r"^build (\S+/netrax\.rc\.\w+): RC_COMPILER.*?\n\n", rules_in(folder), re.M | re.S)
        expect(step is not None, "the resources are no part of the build")
        expect(f"-I {ROOT}/resources " in step[0], step[0])
        made = run("ninja", "-C", folder / "build", step[1])
        expect_equal(made.returncode, 0, made.stdout)


@check
def a_missing_sdk_is_the_one_error_that_is_said():
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        for arguments, lacks in (([], "no inc in ''"), ([f"-DOBJECTARX_SDK={folder}"], f"no inc in '{folder}'")):
            done = configure(folder, *arguments)
            said = " ".join(done.stderr.split())  # CMake breaks long lines
            expect_equal(done.returncode, 1, "status")
            expect_equal(said.count("CMake Error"), 1, "errors")
            expect(f"OBJECTARX_SDK is not the SDK's folder: {lacks}" in said, said)


def settings_of_the_build():
    text = (ROOT / "cmake" / "objectarx" / "CMakeLists.txt").read_text()
    return re.sub(r"#.*", "", text)


@check
def the_build_asks_for_the_shared_libraries_of_the_release():
    text = settings_of_the_build()
    for setting in ("set(CMAKE_MFC_FLAG 2)", "set(CMAKE_MSVC_RUNTIME_LIBRARY MultiThreadedDLL)",
                    "MSVC_VERSION EQUAL 1600", "VERSION_LESS 16.0.40219", "resources/netrax.rc", "resources/netrax.def"):
        expect(setting in text, f"{setting} is missing")


@check
def the_module_shows_the_host_two_functions_and_no_more():
    lines = (ROOT / "resources" / "netrax.def").read_text().split("EXPORTS")[1].split("\n")
    names = [line.split() for line in lines if line.strip()]
    expect_equal(names, [["acrxEntryPoint", "PRIVATE"], ["acrxGetApiVersion", "PRIVATE"]], "exports")


def listed_in(symbols):
    """The rows of signatures.cxx, written as nm writes an import."""
    for symbol in symbols:
        if found := re.fullmatch(r"Constructed<(\w+)(?:, (.*))?>::row\(\)", symbol):
            yield f"{found[1]}::{found[1]}({found[2] or ''})"
        elif found := re.fullmatch(r"Declared<.*?\((?:\w+::)?\*\)\((.*)\)( const)?, &\(?(.*)>::row\(\)", symbol):
            name = re.match(r"operator[^\w\s(]+|\w+(::(operator[^\w\s(>]+|\w+))?", found[3])[0]
            yield f"{name}({found[1]}){found[2] or ''}"
            yield name  # of a function of C
        elif found := re.fullmatch(r"Declared<.*, &(.*)>::row\(\)", symbol):
            yield found[1]


def rows(folder):
    source = ROOT / "tests" / "package" / "signatures.cxx"
    made = run("c++", "-std=c++11", "-Wall", "-Werror", "-c", "-I", ROOT, *host_folders(), source, "-o", folder / "rows.o")
    expect_equal(made.returncode, 0, made.stderr)
    return {line.split(" ", 2)[2] for line in run("nm", "-C", folder / "rows.o").stdout.splitlines() if " W " in line}


def imports():
    said = run("nm", "-DC", "--undefined-only", ROOT / "build" / "netrax.arx").stdout
    names = [line.split(maxsplit=1)[1] for line in said.splitlines()]
    return [name for name in names if "@" not in name and not HOSTS_OWN.match(name) and not COMPILERS_OWN.match(name)]


@check
def every_function_that_the_module_imports_is_declared_as_published():
    with tempfile.TemporaryDirectory() as folder:
        listed = set(listed_in(rows(Path(folder))))
    names = imports()
    expect(len(names) > 100, f"only {len(names)} imports were found")
    listed |= {*CALLED_ALIKE}
    expect_equal([name for name in names if name not in listed], [], "imports without a row in signatures.cxx")


if __name__ == "__main__":
    need_built()
    run_all()
