#pragma once
// The four shapes of export file, as data: for each the title of its folder
// dialog, the end of its file name, how the file is written, what becomes
// of a comma in the address, and its header and row template. The shapes
// are those of the address books they are meant for, quirks included.
enum class ExportKind { OE, MSO, Yahoo, Incredible };  // the order of optOperation

enum class ExportFileMode {
    Text,         // replaced, each line printed as it comes, CR LF after it
    BinaryAtEnd,  // LF after each line, the whole text put at the end over the old file's start
};

struct ExportShape {
    int folderTitle;            // language string of the folder dialog's title
    const char* suffix;         // between the category's name and ".csv"
    ExportFileMode mode;
    const char16_t* addrComma;  // put in place of each comma of the address; none: the commas stay
    const char* header;
    const char* row;            // placeholders "<NAME>" ... "<SC>", filled by FillExportRow
};

const ExportShape& ExportShapeOf(ExportKind kind);
