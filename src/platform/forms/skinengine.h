#pragma once
// The skin engine: draws the program's forms in a skin. A skin is a .skf
// file holding a Qt style sheet; the engine reads it and applies it to the
// whole application, so every form opened later is skinned as well. Each
// operation reports failure by returning false.
#include <QString>
#include <QStringList>

class QWidget;

class SkinEngineObject {
public:
    bool SetEngineMode(int mode);
    // Names the .skf file to use; empty text means none. A relative path is
    // taken from the working folder; "\" separates folders as "/" does.
    bool SelectSkinFile(const QString& path);
    // Marks a list or tree as drawn by the engine (its property "skinControl"),
    // so that a sheet can address it, and draws it anew.
    bool ApplyToControl(QWidget* control, int how);
    bool ApplyToAllForms(int how);
    bool SetDrawMode(int mode);
    // Reads the named file; fails when it can't be read. No file named
    // loads the empty sheet: the look of the desktop.
    bool LoadSelectedSkin();

private:
    QString selected_;
    QString sheet_;
};

// The process's one engine, made when first named and never released.
SkinEngineObject& SkinEngine();

// ---- for tests ----
// Every call is noted in `log` as "Name argument", until set to null.
void SetSkinEngineLogForTest(QStringList* log);
// Back to no skin at all: nothing selected, the application's sheet empty.
void ResetSkinEngineForTest();
