#pragma once
// The seam between the review session and its sources. A source reads its
// address book into ListView1 through the sink, row by row, and says
// whether it could; what the form does then is its row of the table of
// designs.
#include <QStringList>

// A row as a source gives it: ListView1's sub-items from 2 on (name,
// e-mail, first telephone, notes, company, job title, then the form's own
// columns). Sub-item 1, the running number, is the session's.
using SourceRow = QStringList;

class SourceSink {
public:
    virtual ~SourceSink() = default;
    // picCount shows "current / total", then the window queue runs once.
    virtual void ShowCount(int current, int total) = 0;
    // picCount emptied at the end of a read.
    virtual void ClearCount() = 0;
    virtual void AddRow(const SourceRow& row) = 0;
};

class ImportSource {
public:
    virtual ~ImportSource() = default;
    virtual bool Load(SourceSink& sink) = 0;
};
