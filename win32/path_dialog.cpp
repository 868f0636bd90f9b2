#include "win32/path_dialog.h"

#include "win32/wide.h"

#include <commdlg.h>
#include <shlobj.h>

#include <algorithm>

namespace ornavel::win32 {
namespace {

using forms::PathQuestion;

constexpr std::size_t longest_path = 4096;

/// Names and patterns of the kinds of files, each with a NUL behind it, and one more at the end.
std::wstring filter_of(const PathQuestion& question) {
    std::wstring filter;
    const auto add = [&](TextView name, TextView pattern) {
        filter += wide(Text(name) + u" (" + Text(pattern) + u")") + L'\0' + wide(pattern) + L'\0';
    };
    if (!question.pattern.empty()) add(question.files, question.pattern);
    add(u"All files", u"*.*");
    return filter;
}

/// Of the first pattern, without its dot; empty where any file will do.
std::wstring extension_of(const PathQuestion& question) {
    const Text first = split(question.pattern, u";").front();
    return wide(first.substr(std::min(first.size(), first.find_last_of(u'.') + 1)));
}

std::optional<Text> ask_for_file(HWND owner, const PathQuestion& question) {
    const std::wstring filter = filter_of(question), title = wide(question.title);
    const std::wstring proposed = wide(question.proposed), extension = extension_of(question);
    std::wstring path(longest_path, L'\0');
    std::copy_n(proposed.begin(), std::min(proposed.size(), longest_path - 1), path.begin());
    OPENFILENAMEW dialog{};
    dialog.lStructSize = OPENFILENAME_SIZE_VERSION_400W;
    dialog.hwndOwner = owner;
    dialog.lpstrFilter = filter.c_str();
    dialog.lpstrFile = path.data();
    dialog.nMaxFile = static_cast<DWORD>(path.size());
    dialog.lpstrTitle = title.c_str();
    const bool saves = question.kind == PathQuestion::Kind::new_file;
    if (saves && !extension.empty()) dialog.lpstrDefExt = extension.c_str();
    dialog.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_PATHMUSTEXIST |
                   (saves ? OFN_OVERWRITEPROMPT : OFN_FILEMUSTEXIST);
    if (saves ? GetSaveFileNameW(&dialog) : GetOpenFileNameW(&dialog)) return text_of(path.c_str());
    // A proposal that is no file's name must not keep the dialog from the user.
    if (CommDlgExtendedError() == FNERR_INVALIDFILENAME && !question.proposed.empty()) {
        PathQuestion plain = question;
        plain.proposed.clear();
        return ask_for_file(owner, plain);
    }
    if (const DWORD error = CommDlgExtendedError()) fail(question.title, error);
    return {};
}

int CALLBACK prepare_folder_dialog(HWND window, UINT message, LPARAM, LPARAM pointer) {
    if (message != BFFM_INITIALIZED) return 0;
    const auto& question = *reinterpret_cast<const PathQuestion*>(pointer);
    attempt([&] {
        SetWindowTextW(window, wide(question.title).c_str());
        SendMessageW(window, BFFM_SETSELECTIONW, TRUE,
                     reinterpret_cast<LPARAM>(wide(question.proposed).c_str()));
    });
    return 0;
}

std::optional<Text> ask_for_folder(HWND owner, const PathQuestion& question) {
    BROWSEINFOW dialog{};
    dialog.hwndOwner = owner;
    dialog.ulFlags = BIF_RETURNONLYFSDIRS;
    dialog.lpfn = prepare_folder_dialog;
    dialog.lParam = reinterpret_cast<LPARAM>(&question);
    const LPITEMIDLIST chosen = SHBrowseForFolderW(&dialog);
    if (!chosen) return {};
    wchar_t path[MAX_PATH] = {};
    const bool is_folder = SHGetPathFromIDListW(chosen, path);
    CoTaskMemFree(chosen);
    if (!is_folder) return {};
    return text_of(path);
}

} // namespace

std::optional<Text> ask_for_path(HWND owner, const PathQuestion& question) {
    return question.kind == PathQuestion::Kind::folder ? ask_for_folder(owner, question)
                                                       : ask_for_file(owner, question);
}

} // namespace ornavel::win32
