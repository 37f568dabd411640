' Header icons and the version as a script without any form meets them. It has no image list to assign.
Class SomethingElse
    Public hImageList
End Class

Dim combo
Set combo = CreateObject("VelloraCTL.Vellora")

combo.Columns = 2
Check "no image list at first", True, combo.HeaderIcons Is Nothing
Check "no key at first", "", combo.HeaderIcon(1)
combo.HeaderIcon(1) = "flag"
Check "without an image list a key does nothing", "", combo.HeaderIcon(1)
Set combo.HeaderIcons = Nothing
Check "Nothing may be assigned", True, combo.HeaderIcons Is Nothing
Check "the version begins with the title", "VelloraCTL v", Left(combo.Version, 12)
Check "the version ends with four digits", " Build ", Mid(combo.Version, Len(combo.Version) - 10, 7)

On Error Resume Next
Dim key
key = combo.HeaderIcon(0)
CheckError "no column 0", 35600, "Index out of bounds"
key = combo.HeaderIcon(3)
CheckError "no column 3", 35600, "Index out of bounds"
Set combo.HeaderIcons = New SomethingElse
CheckError "an object of another kind", 380, _
    "HeaderIcons takes an image list: an object with the properties hImageList and ListImages"
Set combo.HeaderIcons = combo
CheckError "the control itself", 380, _
    "HeaderIcons takes an image list: an object with the properties hImageList and ListImages"
Check "the refused objects changed nothing", True, combo.HeaderIcons Is Nothing
WScript.Echo "1.." & checks
