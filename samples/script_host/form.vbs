' A form in VBScript, for script_host.exe, which brings along the object Form:
'
'   Form.Preset NAME, VALUE           a setting that the next control is loaded with, as if a designer had saved it
'   Form.Add(NAME)                    a new control on the form
'   Form.ConnectObject CONTROL, NAME  calls Sub NAME... of this script for the control's events
'   Form.Status = TEXT                the line at the bottom
Option Explicit

Dim Countries

' Check boxes cannot be had any more once the program runs.
Form.Preset "CheckBoxes", True
Set Countries = Form.Add("Countries")
Form.ConnectObject Countries, "Countries_"

Countries.Columns = 2
Countries.TextColumn = 2
Countries.AddItem Array("NZ", "NEW ZEALAND")
Countries.AddItem Array("CH", "SWITZERLAND")
Countries.AddItem Array("PE", "PERU")
Form.Status = "Type, or open the list. New Zealand cannot be checked."

' State comes by reference, as most arguments of events do.
Sub Countries_DropDown(State)
    If State = 0 Then
        Form.Status = "The list is open."
    Else
        Form.Status = "The list is closed; checked: " & Countries.CheckedCount
    End If
End Sub

' The letters a to z become capital ones: the control takes the character that the handler leaves behind.
Sub Countries_KeyPress(KeyAscii)
    If KeyAscii >= 97 And KeyAscii <= 122 Then KeyAscii = KeyAscii - 32
End Sub

' Setting Cancel takes the check mark back.
Sub Countries_ItemCheck(ItemIndex, State, Cancel)
    If Countries.List(ItemIndex, 1) = "NZ" Then
        Cancel = True
        Form.Status = "New Zealand stays unchecked."
    End If
End Sub

Sub Countries_Click()
    Form.Status = Countries.Text & " was chosen."
End Sub
