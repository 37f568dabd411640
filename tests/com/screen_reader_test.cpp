// The open list as a screen reader finds it: from another process, by messages.
#include "com/support/open_list_test.h"
#include "support/container/text.h"

#include <commctrl.h>

#include <algorithm>

namespace vellora::test {
namespace {

std::string readable(const RECT& rect) {
    return std::to_string(rect.left) + ',' + std::to_string(rect.top) + ',' + std::to_string(rect.right) + ',' +
           std::to_string(rect.bottom);
}

/// A program that runs while this one goes on answering messages.
class Reader {
public:
    explicit Reader(const std::wstring& arguments) {
        SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
        HANDLE end = nullptr;
        CreatePipe(&output_, &end, &inherited, 1 << 16);
        STARTUPINFOW start{};
        start.cb = sizeof start;
        start.dwFlags = STARTF_USESTDHANDLES;
        start.hStdOutput = end;
        start.hStdError = end;
        std::wstring command = L"\"" + program() + L"\" " + arguments;
        EXPECT_TRUE(
            CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process_));
        CloseHandle(end);
    }
    ~Reader() {
        CloseHandle(process_.hProcess);
        CloseHandle(process_.hThread);
        CloseHandle(output_);
    }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    Lines lines(Container& container) {
        while (MsgWaitForMultipleObjects(1, &process_.hProcess, FALSE, INFINITE, QS_ALLINPUT) != WAIT_OBJECT_0)
            container.pump();
        std::string text;
        char part[4096];
        DWORD read = 0;
        while (ReadFile(output_, part, sizeof part, &read, nullptr) && read > 0)
            text.append(part, read);
        Lines lines(1);
        for (const char each : text) {
            if (each == '\n')
                lines.emplace_back();
            else if (each != '\r')
                lines.back() += each;
        }
        return lines;
    }

private:
    static std::wstring program() {
        wchar_t path[MAX_PATH] = {};
        GetModuleFileNameW(nullptr, path, MAX_PATH);
        const std::wstring own(path);
        return own.substr(0, own.find_last_of(L'\\') + 1) + L"list_reader.exe";
    }

    HANDLE output_ = nullptr;
    PROCESS_INFORMATION process_{};
};

class ScreenReader : public OpenListTest {
protected:
    Lines read() {
        const auto number = [](HWND window) { return std::to_wstring(reinterpret_cast<ULONG_PTR>(window)); };
        return Reader(number(control()) + L" " + number(list())).lines(container_);
    }
    /// The lines that begin with one of these words.
    static Lines about(const Lines& lines, std::initializer_list<std::string> words) {
        Lines chosen;
        for (const std::string& line : lines)
            if (std::any_of(words.begin(), words.end(), [&](const auto& word) { return line.starts_with(word); }))
                chosen.push_back(line);
        return chosen;
    }
};

TEST_F(ScreenReader, ReadsRowsAndCells) {
    fill(2, 2);
    c().put_ListIndex(1);
    open();
    const Lines lines = read();
    RECT cell{LVIR_BOUNDS, 1, 0, 0};
    SendMessageW(list(), LVM_GETSUBITEMRECT, 1, reinterpret_cast<LPARAM>(&cell));
    MapWindowPoints(list(), nullptr, reinterpret_cast<POINT*>(&cell), 2);
    EXPECT_TRUE(
        same_lines({"rows 2", "row 0 box 0", "cell 0.0 row 0.1", "cell 0.1 row 0.2", "row 1 selected focused box 0",
                    "cell 1.0 row 1.1", "cell 1.1 row 1.2", "first row at " + readable(row_rect(list(), 0)),
                    "cell 1.1 at " + readable(cell), "selected 1", "focused 1", "boxes none"},
                   about(lines, {"row", "cell", "first", "selected", "focused", "boxes"})));
    EXPECT_TRUE(is_open());
}

TEST_F(ScreenReader, ReadsHeadersInTheirOrder) {
    fill(2, 3);
    c().put_ColumnHeader(2, Bstr(L"Town").get());
    c().put_ColumnOrder(long_array({3, 1, 2}).get());
    open();
    const Lines lines = read();
    EXPECT_TRUE(same_lines({"headers 3", "header 0 ", "header 1 Town", "header 2 ",
                            "header 1 at " + readable(header_rect(list(), 1)), "order 2 0 1"},
                           about(lines, {"headers", "header 0", "header 1", "header 2", "order"})));
}

TEST_F(ScreenReader, ReadsCheckBoxes) {
    use(place_with_check_boxes());
    fill(2);
    c().put_Checked(1, VARIANT_TRUE);
    open();
    EXPECT_TRUE(same_lines({"row 0 box 1", "row 1 box 2", "boxes drawn"}, about(read(), {"row 0", "row 1", "boxes"})));
}

TEST_F(ScreenReader, SeesTheControlAsAComboBox) {
    fill(2, 2);
    open();
    const Lines objects = about(read(), {"control object"});
    ASSERT_EQ(1U, objects.size());
    EXPECT_EQ("control object role 46 name Vellora1", objects[0].substr(0, objects[0].find(" children"))) << objects[0];
}

} // namespace
} // namespace vellora::test
