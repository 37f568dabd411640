#include "native/form_files.h"

#include "container/form_binary.h"
#include "container/form_text_record.h"

#include <numeric>

namespace vellora::test {

using namespace samples;

Form FormFolder::read() const {
    return read_form({"Form1.frm", text, [this](const std::u16string& name) {
                          const auto found = files.find(name);
                          return found == files.end() ? std::nullopt : std::optional(found->second);
                      }});
}

std::string FormFolder::error() const {
    try {
        read();
    } catch (const FormError& error) {
        return error.what();
    }
    return {};
}

FormFolder written(const Form& form) {
    FormText text = write_form(form, u"Form1.frx");
    FormFolder folder{std::move(text.text)};
    if (!text.companion.empty())
        folder.files[u"Form1.frx"] = std::move(text.companion);
    return folder;
}

FormBlob bytes(std::string_view text) {
    const auto all = std::as_bytes(std::span(text));
    return FormBlob(all.begin(), all.end());
}

std::string lines(const std::vector<std::string>& all) {
    return std::accumulate(all.begin(), all.end(), std::string(),
                           [](const std::string& before, const std::string& line) { return before + line + "\r\n"; });
}

std::vector<std::string> split_lines(const std::string& text) {
    std::vector<std::string> all;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find("\r\n", at), text.size());
        all.push_back(text.substr(at, end - at));
        at = end + 2;
    }
    return all;
}

FormFolder complete_form() {
    FormBlob companion = record_of(bytes("a picture"));
    const FormBlob text = record_of_text(u"Line 1\r\nLine 2");
    companion.insert(companion.end(), text.begin(), text.end());
    return {lines({"VERSION 5.00",
                   "Begin Form Form1",
                   "   Caption         =   \"Form1\"",
                   "   ClientHeight    =   3195",
                   "   ClientWidth     =   4680",
                   "   BackColor       =   &H8000000F&",
                   "   Begin VelloraCTL.Vellora Vellora1",
                   "      Height          =   315",
                   "      Left            =   120",
                   "      TabIndex        =   0",
                   "      Top             =   -120",
                   "      Width           =   2415",
                   "      Columns         =   3",
                   "      Locked          =   -1  'True",
                   "      Text            =   \"He said \"\"yes\"\"\"",
                   "      DropDownWidthOffset=   120.25",
                   "      BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}",
                   "         Name            =   \"Tahoma\"",
                   "         Size            =   8.25",
                   "      EndProperty",
                   "      Picture         =   \"Form1.frx\":0000",
                   "      Hint            =   $\"Form1.frx\":0011",
                   "   End",
                   "End"}),
            {{u"Form1.frx", companion}}};
}

FormFolder foreign_form() {
    return {lines({"VERSION 5.00",
                   "Object = \"{6F1B0A52-0000-4000-8000-000000000000}#2.0#0\"; \"Tools.ocx\"",
                   "Begin Host.MdiForm frmMain ",
                   "   Caption         =   \"Gr\xC3\xB6\xC3\x9F"
                   "e \xF0\x9F\x98\x80\"",
                   "   ClientHeight    =   3195",
                   "   ClientLeft      =   165",
                   "   ClientTop       =   855",
                   "   ClientWidth     =   4680",
                   "   Icon            =   \"Other.frx\":030A",
                   "   ScaleMode       =   1  'Twip",
                   "   Begin Host.Frame Frame1 ",
                   "      Caption         =   \"Options\"",
                   "      Height          =   1215",
                   "      Left            =   120",
                   "      TabIndex        =   1",
                   "      Top             =   240",
                   "      Width           =   2055",
                   "      Begin Host.Option Option1 ",
                   "         Height          =   255",
                   "         Index           =   0",
                   "         Left            =   120",
                   "         TabIndex        =   2",
                   "         Top             =   240",
                   "         Width           =   1335",
                   "      End",
                   "      Begin Host.Option Option1 ",
                   "         Height          =   255",
                   "         Index           =   1",
                   "         Left            =   120",
                   "         TabIndex        =   3",
                   "         Top             =   600",
                   "         Width           =   1335",
                   "      End",
                   "   End",
                   "   Begin Host.Timer Timer1 ",
                   "      Left            =   0",
                   "      Top             =   0",
                   "   End",
                   "   Begin Tools.Tabs Tabs1 ",
                   "      Height          =   1455",
                   "      Left            =   2280",
                   "      TabIndex        =   0",
                   "      Top             =   120",
                   "      Width           =   2295",
                   "      _ExtentX        =   4048",
                   "      Tab(0).Control(0)=   \"Label1\"",
                   "      BeginProperty Images {6F1B0A52-0000-4000-8000-000000000001} ",
                   "         NumListImages   =   1",
                   "         BeginProperty ListImage1 {6F1B0A52-0000-4000-8000-000000000002} ",
                   "            Key             =   \"\"",
                   "         EndProperty",
                   "      EndProperty",
                   "   End",
                   "   Begin Host.Menu mnuFile ",
                   "      Caption         =   \"&File\"",
                   "      Begin Host.Menu mnuOpen ",
                   "         Caption         =   \"&Open...\"",
                   "         Shortcut        =   ^O",
                   "      End",
                   "   End",
                   "End",
                   "Attribute Name = \"frmMain\"",
                   "Option Explicit",
                   "",
                   "Private Sub mnuOpen_Click()",
                   "    End ' of everything: \xFC",
                   "End Sub"}),
            {{u"Other.frx", bytes(std::string(0x30A, 'x') + "an icon of another program")}}};
}

} // namespace vellora::test
