#include "host/program/unsaved.h"

#include "host/documents/documentmanager.h"
#include "host/dxf/drawingfile.h"
#include "host/editor/keywords.h"
#include "host/text/numbers.h"
#include "host/editor/owntexts.h"
#include "host/program/platform.h"
#include "host/windows/text.h"

namespace host
{
namespace
{
namespace fs = std::filesystem;

// Asks a question; Enter, Esc and the end of the input mean No.
bool isYes(Editor& editor, const std::wstring& prompt)
{
    const KeywordList answers(own(L"Yes No"));
    const Question question{
        .kind = Question::Kind::keyword, .prompt = prompt, .keywords = answers.names()};
    for (;;)
    {
        const Answer answer = editor.ask(question);
        const std::wstring_view typed = trimmed(answer.text);
        if (cancelled(answer) || typed.empty())
        {
            return false;
        }
        if (const auto keyword = answers.match(typed))
        {
            return *keyword == L"Yes";
        }
        editor.printLine(own(L"Invalid option keyword."));
    }
}

std::wstring shown(const fs::path& file)
{
    return fromUtf8(file.string());
}

// Returns the folders to try for a kept drawing, the best folder first.
std::vector<fs::path> foldersForKept(const fs::path& drawing)
{
    std::vector<fs::path> folders = {drawing.parent_path(), stateFolder()};
    std::erase(folders, fs::path());
    return folders;
}

// Returns the name of a kept drawing; the first name has no number.
fs::path keptFile(const fs::path& folder, const fs::path& drawing, int number)
{
    const std::size_t longest = 200;  // leaves room for the rest of the name
    const std::string stem = drawing.stem().string();
    const std::string name = stem.empty() || stem.size() > longest ? "drawing" : stem;
    const std::string counted = number > 1 ? "-" + std::to_string(number) : "";
    return folder / pathOf(name + "-recovered" + counted + ".dxf");
}

bool isThere(const fs::path& file)
{
    std::error_code ignored;
    return fs::exists(file, ignored);
}

// Makes a new file in the folder; returns an empty path if the folder takes no file.
fs::path newFileIn(const fs::path& folder, const fs::path& drawing)
{
    for (int number = 1;; ++number)
    {
        const fs::path file = keptFile(folder, drawing, number);
        if (makeNewFile(file))
        {
            return file;
        }
        if (!isThere(file))
        {
            return {};
        }
    }
}

// Saves the drawing in the folder and reports where.
Result<> keepIn(const fs::path& folder, Editor& editor)
{
    const Document& document = *documents().document();
    const fs::path file = newFileIn(folder, document.path());
    if (file.empty())
    {
        return Failure{folder.string() + ": takes no new file"};
    }
    const Result<> saved = saveDrawing(*document.database(), file.string());
    if (!saved)
    {
        std::error_code ignored;
        fs::remove(file, ignored);
        return saved;
    }
    editor.report(
        own(L"the changes of the drawing are not saved, they are kept in %1", {shown(file)}));
    return Done{};
}
}  // namespace

void noteSaved(Editor& editor)
{
    // Only a person's questions need the digest, which takes time in a large drawing.
    if (editor.interactive())
    {
        Document& document = *documents().document();
        document.noteSaved(digestOfChanges(*document.database()));
    }
}

bool isUnsaved()
{
    const Document& document = *documents().document();
    return document.savedDigest() != digestOfChanges(*document.database());
}

bool mayGiveUpChanges(Editor& editor)
{
    return !isUnsaved() ||
           isYes(editor,
                 own(L"The drawing has changes that are not saved. Give them up? [Yes/No] <No>: "));
}

bool mayReplace(Editor& editor, const fs::path& file)
{
    std::error_code ignored;
    return !editor.interactive() || !fs::is_regular_file(file, ignored) ||
           isYes(editor, own(L"%1 exists already. Replace it? [Yes/No] <No>: ", {shown(file)}));
}

void tellSaved(Editor& editor, const fs::path& file)
{
    if (editor.interactive())
    {
        editor.printLine(own(L"saved %1", {shown(file)}));
    }
}

void keepUnsaved(Editor& editor)
{
    std::vector<fs::path> folders = foldersForKept(documents().document()->path());
    std::error_code ignored;
    folders.push_back(fs::temp_directory_path(ignored));
    Result<> kept = Done{};
    for (const fs::path& folder : folders)
    {
        kept = keepIn(folder, editor);
        if (kept)
        {
            return;
        }
    }
    editor.report(own(L"the changes of the drawing are lost: %1", {fromUtf8(kept.failure().line)}));
}

void tellKept(Editor& editor)
{
    const fs::path& drawing = documents().document()->path();
    for (const fs::path& folder : foldersForKept(drawing))
    {
        for (int number = 1; isThere(keptFile(folder, drawing, number)); ++number)
        {
            editor.printLine(own(L"%1 keeps changes that were not saved.",
                                 {shown(keptFile(folder, drawing, number))}));
        }
    }
}
}  // namespace host
