#include "platform/forms/skinengine.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStyle>
#include <QWidget>

namespace {
QStringList* g_log = nullptr;

void Note(const char* operation, const QString& argument) {
    if (g_log) *g_log << QString::fromLatin1(operation) + (argument.isNull() ? QString() : " " + argument);
}

// A skin path written on Windows: "\" separates folders, and a folder or
// file may be spelled in another case than on this disk.
QString ResolveSkinPath(const QString& path) {
    if (QFileInfo::exists(path)) return path;
    const QString slashed = QString(path).replace(QLatin1Char('\\'), QLatin1Char('/'));
    QString resolved = slashed.startsWith(QLatin1Char('/')) ? QStringLiteral("/") : QString();
    for (const QString& part : slashed.split(QLatin1Char('/'), Qt::SkipEmptyParts)) {
        QString next = resolved + part;
        if (!QFileInfo::exists(next)) {
            const QDir folder(resolved.isEmpty() ? QStringLiteral(".") : resolved);
            for (const QString& entry : folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::System))
                if (entry.compare(part, Qt::CaseInsensitive) == 0) next = resolved + entry;
        }
        resolved = next + "/";
    }
    resolved.chop(1);
    return resolved;
}
}  // namespace

bool SkinEngineObject::SetEngineMode(int mode) {
    Note("SetEngineMode", QString::number(mode));
    return true;
}

bool SkinEngineObject::SelectSkinFile(const QString& path) {
    Note("SelectSkinFile", "\"" + path + "\"");
    selected_ = path;
    return true;
}

bool SkinEngineObject::ApplyToControl(QWidget* control, int how) {
    Note("ApplyToControl", (control ? control->objectName() : QStringLiteral("none")) + " " + QString::number(how));
    if (!control) return false;
    control->setProperty("skinControl", true);
    control->style()->unpolish(control);
    control->style()->polish(control);
    control->update();
    return true;
}

bool SkinEngineObject::ApplyToAllForms(int how) {
    Note("ApplyToAllForms", QString::number(how));
    qApp->setStyleSheet(sheet_);
    return true;
}

bool SkinEngineObject::SetDrawMode(int mode) {
    Note("SetDrawMode", QString::number(mode));
    return true;
}

bool SkinEngineObject::LoadSelectedSkin() {
    Note("LoadSelectedSkin", QString());
    sheet_.clear();
    if (selected_.isEmpty()) return true;
    QFile file(ResolveSkinPath(selected_));
    if (!file.open(QIODevice::ReadOnly)) return false;
    sheet_ = QString::fromUtf8(file.readAll());
    return true;
}

SkinEngineObject& SkinEngine() {
    static SkinEngineObject* engine = new SkinEngineObject;
    return *engine;
}

void SetSkinEngineLogForTest(QStringList* log) { g_log = log; }

void ResetSkinEngineForTest() {
    SkinEngine() = SkinEngineObject();
    if (qApp) qApp->setStyleSheet(QString());
}
