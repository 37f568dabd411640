' Header icons as a script without any form uses them, with an image list object of the script's own.
Option Explicit

Class Image
    Public Index
    Public Key
End Class

Class Images
    Public Function Item(key)
        If key <> "flag" Then Err.Raise 35601, "Images", "Element not found"
        Set Item = New Image
        Item.Index = 1
        Item.Key = key
    End Function
    Public Property Get Count
        Count = 1
    End Property
End Class

Class ImageList
    Public hImageList
    Public ListImages
    Private Sub Class_Initialize
        hImageList = 0
        Set ListImages = New Images
    End Sub
End Class

Class SomethingElse
    Public hImageList
End Class

Dim combo, icons, checks
checks = 0
Set combo = CreateObject("VelloraCTL.Vellora")
Set icons = New ImageList

Sub Check(name, expected, actual)
    checks = checks + 1
    If expected = actual Then
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

combo.Columns = 2
Check "no image list at first", True, combo.HeaderIcons Is Nothing
Check "no key at first", "", combo.HeaderIcon(1)
combo.HeaderIcon(1) = "flag"
Check "without an image list a key does nothing", "", combo.HeaderIcon(1)
Set combo.HeaderIcons = icons
Check "the image list is the script's object", True, combo.HeaderIcons Is icons
combo.HeaderIcon(1) = ""
Check "an empty key is no icon", "", combo.HeaderIcon(1)

On Error Resume Next
Dim key
combo.HeaderIcon(1) = "flag"
CheckError "a list without a handle has no images", 35601, "Element not found"
combo.HeaderIcon(1) = "nowhere"
CheckError "a key that is not in the list", 35601, "Element not found"
combo.HeaderIcon(3) = "flag"
CheckError "no such column", 35600, "Index out of bounds"
key = combo.HeaderIcon(0)
CheckError "no column 0", 35600, "Index out of bounds"
Set combo.HeaderIcons = New SomethingElse
CheckError "an object of another kind", 380, _
    "HeaderIcons takes an image list: an object with the properties hImageList and ListImages"
Set combo.HeaderIcons = combo
CheckError "the control itself", 380, _
    "HeaderIcons takes an image list: an object with the properties hImageList and ListImages"
Check "the refused objects changed nothing", True, combo.HeaderIcons Is icons
Set combo.HeaderIcons = Nothing
Check "Nothing takes the list away", True, combo.HeaderIcons Is Nothing
WScript.Echo "1.." & checks
