' Columns as a script without any form uses them.
Dim combo
Set combo = CreateObject("VelloraCTL.Vellora")

Check "a new control has one column", 1, combo.Columns
combo.Columns = 3
Check "Columns", 3, combo.Columns
combo.ColumnHeader(2) = "Town"
Check "ColumnHeader", "Town", combo.ColumnHeader(2)
combo.ColumnWidth(2) = 1500
Check "ColumnWidth", CSng(1500), combo.ColumnWidth(2)
combo.ColumnHidden(3) = True
Check "ColumnHidden", True, combo.ColumnHidden(3)
combo.ColumnLocked(1) = True
Check "ColumnLocked", True, combo.ColumnLocked(1)
combo.HideColumnHeaders = True
Check "HideColumnHeaders", True, combo.HideColumnHeaders
combo.AutoSize = 2
Check "AutoSize", CLng(2), combo.AutoSize
combo.AutoSizeNow 1
combo.AddItem Array("a", "b", "c")
combo.Columns = 3
Check "the same count keeps the rows", CLng(1), combo.ListCount
combo.Columns = 2
Check "another count removes them", CLng(0), combo.ListCount
combo.Columns = 50
Check "fifty columns are allowed", 50, combo.Columns

On Error Resume Next
Dim value
combo.Columns = 0
CheckError "no columns", -2147219983, "Invalid Columns Value. Value must be between 1 and 50"
combo.Columns = 51
CheckError "too many columns", -2147219983, "Invalid Columns Value. Value must be between 1 and 50"
combo.Columns = 2
value = combo.ColumnHeader(3)
CheckError "no such header", -2147219984, "Invalid Column ColumnIndex"
combo.ColumnHeader(0) = "x"
CheckError "no header 0", -2147219984, "Invalid Column ColumnIndex"
combo.ColumnWidth(0) = 100
CheckError "no width of column 0", -2147219983, "Invalid Columns Value. Value must be between 1 and 10"
value = combo.ColumnWidth(51)
CheckError "reading a width outside the array", 9, "Subscript out of range"
combo.ColumnHidden(51) = True
CheckError "hiding a column that cannot be", -2147219983, "Invalid Columns Value. Value must be between 1 and 50"
value = combo.ColumnLocked(0)
CheckError "reading a flag outside the array", 9, "Subscript out of range"
combo.ColumnWidth(40) = 100
CheckError "a width of a column that is not there", 35600, "Index out of bounds"
Check "nothing of that changed the columns", 2, combo.Columns
WScript.Echo "1.." & checks
