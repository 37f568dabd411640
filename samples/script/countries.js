// The control by late binding from JScript: no form, no type library, names only. VBScript does the same in
// countries.vbs.
//
//     cscript //nologo countries.js
var combo = new ActiveXObject("VelloraCTL.Vellora");

// Columns count from 1.
combo.Columns = 3;
combo.ColumnHeader(1) = "Code";
combo.ColumnHeader(2) = "Country";
combo.ColumnHeader(3) = "Capital";

// JScript's arrays are objects, which make no row. So a row is filled cell by cell; writing to the place behind the
// last row makes a new one with all its cells.
function addRow(code, country, capital) {
    var row = combo.ListCount;
    combo.List(row, 1) = code;
    combo.List(row, 2) = country;
    combo.List(row, 3) = capital;
}
addRow("NZ", "New Zealand", "Wellington");
addRow("CH", "Switzerland", "Bern");
addRow("PE", "Peru", "Lima");
addRow("NO", "Norway", "Oslo");

// The text column is the one that shows in the field; it also decides the order.
combo.TextColumn = 2;
combo.SortColumn = 2;
combo.Sorted = true;
WScript.Echo(combo.ListCount + " rows in " + combo.Columns + " columns, sorted by " + combo.ColumnHeader(2) + ":");

// Rows count from 0.
for (var row = 0; row < combo.ListCount; ++row)
    WScript.Echo("  " + combo.List(row, 1) + "  " + combo.List(row, 2) + ", " + combo.List(row, 3));

// Choosing a row, in both ways.
combo.ListIndex = 1;
WScript.Echo("Row 1 shows " + combo.Text);
combo.ListIndex = combo.FindItem("Wellington", 3);
WScript.Echo("Wellington is in row " + combo.ListIndex + ", " + combo.Text);
WScript.Echo("A text that begins with Sw, in any column: row " + combo.FindItem("Sw", -1, 1, 1));
WScript.Echo("No row has Atlantis: " + combo.FindItem("Atlantis", 2));

// -2 is a whole row, -3 all rows from one on. They are arrays of texts, which another control, or the same one,
// takes as they are.
var cells = combo.List(0, -2);
combo.Sorted = false;
combo.AddItem(cells);
WScript.Echo("A copy of row 0 is row " + combo.NewIndex + ": " + combo.List(combo.NewIndex, 2));

// What goes wrong is an exception like any other.
try {
    combo.ListIndex = 99;
} catch (problem) {
    WScript.Echo("Row 99: " + problem.message);
}
