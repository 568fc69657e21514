#pragma once
// The program's use of the skin engine: its set-up, a skin shown, and the
// lists and trees handed to it. Each routine ends at the first failure the
// engine reports; nothing is shown, and the program goes on unskinned.
#include <QList>
#include <QString>

class QWidget;

// The engine's two set-up calls, made before its first skin of a run.
bool SetUpSkinEngine();
// Names the skin (empty: none), reads it and applies it to every form.
bool ShowSkin(const QString& path);
// When SkinEnabled, hands each list or tree of a form to the engine at the
// form's load, with or without a skin in force.
bool SkinControls(const QList<QWidget*>& controls);
