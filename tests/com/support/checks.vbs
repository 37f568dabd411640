' What every script test begins with; the runner puts it before the script.
Option Explicit

Dim checks
checks = 0

Sub Check(name, expected, actual)
    checks = checks + 1
    If expected = actual And VarType(expected) = VarType(actual) Then
        WScript.Echo "ok " & name
    Else
        WScript.Echo "not ok " & name & ": expected " & expected & ", got " & actual
    End If
End Sub

Sub CheckError(name, number, description)
    checks = checks + 1
    If Err.Number = number And Err.Description = description Then
        WScript.Echo "ok " & name
    Else
        WScript.Echo "not ok " & name & ": expected " & number & " " & description & _
            ", got " & Err.Number & " " & Err.Description
    End If
    Err.Clear
End Sub
