' Rows as a script without any form uses them.
Dim combo
Set combo = CreateObject("VelloraCTL.Vellora")

Check "a new control has no rows", CLng(0), combo.ListCount
Check "no row was added yet", CLng(-1), combo.NewIndex
Check "no row is selected", CLng(-1), combo.ListIndex

combo.AddItem "a"
combo.AddItem "b", 0
Check "AddItem appends and inserts", CLng(2), combo.ListCount
Check "the inserted row comes first", "b", combo.List(0)
Check "NewIndex names the inserted row", CLng(0), combo.NewIndex

combo.List(3) = "x"
Check "writing beyond the end grows the list", CLng(4), combo.ListCount
Check "rows between hold a space", " ", combo.List(2)

combo.Clear
Check "Clear empties the list", CLng(0), combo.ListCount

combo.Columns = 2
combo.AddItem Array("a", 1)
combo.AddItem Array("b", 2)
combo.AddItem Array("c", 3)
Check "an array makes a row", "2", combo.List(1, 2)
combo.TextColumn = 2
Check "the text column answers when none is named", "3", combo.List(2)
combo.TextColumn = 1

Dim row
row = combo.List(1, -2)
Check "a row comes as an array of texts", vbArray + vbString, VarType(row)
Check "all rows come as a table", vbArray + vbString, VarType(combo.List(0, -3))
combo.AddItem row
Check "an array that was read can be handed back", "2", combo.List(3, 2)
combo.RemoveItem 3

combo.ListIndex = 1
Check "ListIndex selects", CLng(1), combo.ListIndex
Check "the selected text shows", "b", combo.Text
Check "Text is the default member", "b", CStr(combo)
combo.ListIndex = -1
Check "-1 deselects", "", combo.Text

combo.ItemData(2) = 70000
Check "ItemData keeps a number", CLng(70000), combo.ItemData(2)
Check "ItemData is 0 before", CLng(0), combo.ItemData(0)

combo.RemoveItem 0
Check "RemoveItem removes", CLng(2), combo.ListCount
Check "later rows move up", "b", combo.List(0)

Dim position
position = 1
combo.RemoveItem position
Check "RemoveItem takes a variable and leaves it", 1, position
Check "RemoveItem by a variable removes", CLng(1), combo.ListCount

Dim table(1, 1)
table(0, 0) = "p" : table(0, 1) = "q" : table(1, 0) = "r" : table(1, 1) = "s"
combo.List(0, -3) = table
Check "a table written rows first", "q", combo.List(0, 2)
combo.List(0, -1) = table
Check "a table written columns first", "r", combo.List(0, 2)

On Error Resume Next
combo.RemoveItem 99
CheckError "a missing row raises 381", 381, "Invalid property array index"
row = combo.List(99)
CheckError "reading a missing row raises 381", 381, "Invalid property array index"
row = combo.List(0, 0)
CheckError "a bad column raises the control's own error", -2147219984, "Invalid Column ItemIndex"
combo.List(0, -2) = "x"
CheckError "a scalar does not fit a row", -2147219984, "Invalid Column ItemIndex"
combo.ListIndex = 99
CheckError "selecting a missing row raises 381", 381, "Invalid property array index"
combo.TextColumn = 3
CheckError "a bad text column raises 380", 380, "Invalid property value"
combo.AddItem "x", 32767
CheckError "an index at the end of Integer overflows", 6, "Overflow"
combo.AddItem "x", 40000
CheckError "an index beyond Integer overflows", 6, "Overflow"
combo.AddItem Null
CheckError "Null is no text", 94, "Invalid use of Null"
row = combo.List(0, 1)
CheckError "a good call leaves no error", 0, ""
WScript.Echo "1.." & checks
