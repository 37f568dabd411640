' The control by late binding from VBScript: no form, no type library, names only. JScript does the same in
' countries.js.
'
'     cscript //nologo countries.vbs
Option Explicit

Dim combo, row, cells
Set combo = CreateObject("VelloraCTL.Vellora")

' Columns count from 1. An array is a row, a cell for each column.
combo.Columns = 3
combo.ColumnHeader(1) = "Code"
combo.ColumnHeader(2) = "Country"
combo.ColumnHeader(3) = "Capital"
combo.AddItem Array("NZ", "New Zealand", "Wellington")
combo.AddItem Array("CH", "Switzerland", "Bern")
combo.AddItem Array("PE", "Peru", "Lima")
combo.AddItem Array("NO", "Norway", "Oslo")

' The text column is the one that shows in the field; it also decides the order.
combo.TextColumn = 2
combo.SortColumn = 2
combo.Sorted = True
WScript.Echo combo.ListCount & " rows in " & combo.Columns & " columns, sorted by " & combo.ColumnHeader(2) & ":"

' Rows count from 0.
For row = 0 To combo.ListCount - 1
    WScript.Echo "  " & combo.List(row, 1) & "  " & combo.List(row, 2) & ", " & combo.List(row, 3)
Next

' Choosing a row, in both ways.
combo.ListIndex = 1
WScript.Echo "Row 1 shows " & combo.Text
combo.ListIndex = combo.FindItem("Wellington", 3)
WScript.Echo "Wellington is in row " & combo.ListIndex & ", " & combo.Text
WScript.Echo "A text that begins with Sw, in any column: row " & combo.FindItem("Sw", -1, 1, 1)
WScript.Echo "No row has Atlantis: " & combo.FindItem("Atlantis", 2)

' -2 is a whole row, -3 all rows from one on. They are arrays of texts, which another control, or the same one,
' takes as they are.
cells = combo.List(0, -2)
combo.Sorted = False
combo.AddItem cells
WScript.Echo "A copy of row 0 is row " & combo.NewIndex & ": " & combo.List(combo.NewIndex, 2)

' What goes wrong is an error like any other.
On Error Resume Next
combo.ListIndex = 99
WScript.Echo "Row 99: " & Err.Description
