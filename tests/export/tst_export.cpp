// The export from the main window: each menu and toolbar entry writes the
// file of its shape under the name of folder, country, category and shape,
// with its folder dialog's title and the closing message; the refusals, a
// cancel from the progress dialog, and frmExport itself. The bytes of the
// four shapes stand in export_test.
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include "export/core/exportshapes.h"
#include "export/forms/frmexport.h"
#include "export/forms/frmexportmsg.h"
#include "platform/forms/browseforfolder.h"
#include "support/formstore.h"

namespace {
const QString kDone = "Export Contact|64|The contacts have been exported.";

// Anna and Bo of Work in Norway, Carl of Main; the folder dialog answers
// `folder` and notes its titles.
struct ExportStore : MainStore {
    QString folder;
    QStringList titles;
    ExportStore()
        : MainStore("\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n",
                    "\"Norway\",\"00002\",\"00011\"\r\n\"Norway\",\"00002\",\"00012\"\r\n\"Norway\",\"00001\",\"00013\"\r\n") {
        contact("00011", "Anna", "anna@example.no", "", "", "00002");
        contact("00012", "Bo", "", "", "", "00002");
        contact("00013", "Carl");
        QDir().mkpath(folder = store.appFile("out"));
        SetBrowseForFolderHandlerForTest([this](const QString& title) { return titles << title, folder; });
        open();
        clickNode("Work (2)");
    }
    ~ExportStore() { SetBrowseForFolderHandlerForTest({}); }
    QStringList files() const { return QDir(store.appFile("out")).entryList(QDir::Files, QDir::Name); }
    QByteArray file(const QString& name) const { return store.file("out/" + name); }
};

QByteArray Header(ExportKind kind) { return ExportShapeOf(kind).header; }
}  // namespace

class TestExport : public QObject {
    Q_OBJECT
private slots:
    // The shape of each file by its name; its bytes stand in export_test.
    void everyEntryWritesItsShapeUnderItsName() {
        ExportStore s;
        const QByteArray before = s.store.file("category.dat") + s.store.file("cat.dat") + s.record("00011");
        for (const char* entry : {"mnuExportOE", "mnuExportMSO", "exportYahoo", "exportIncredible"}) s.trigger(entry);
        QFile::remove(s.folder + "/Norway-Work (Outlook Express).csv");
        QTest::mouseClick(s.window->Toolbar1->findChild<QToolButton*>("export"), Qt::LeftButton, {}, QPoint(4, 4));
        QCOMPARE(s.files(), QStringList({"Norway-Work (Incredible Mail).csv", "Norway-Work (MS Outlook).csv",
                                         "Norway-Work (Outlook Express).csv", "Norway-Work (Yahoo).csv"}));
        QVERIFY(s.file("Norway-Work (Yahoo).csv").startsWith(Header(ExportKind::Yahoo) + "\n\"Anna\""));
        QCOMPARE(s.titles[3], "Choose a folder for the Incredible Mail file");
        QCOMPARE(s.boxes.lines(), QStringList(5, kDone));
        QCOMPARE(s.store.file("category.dat") + s.store.file("cat.dat") + s.record("00011"), before);
    }

    // The folder dialog cancelled, Cancel of the progress dialog at once, an
    // empty list, and the form shown, which runs the shape chosen and closes.
    void refusalsACancelAtOnceAndTheFormShown() {
        ExportStore s;
        s.folder = " ";
        s.trigger("mnuExportMSO");
        s.folder = s.store.appFile("out");
        QString shown;
        QTimer::singleShot(0, [&] {
            for (QWidget* w : QApplication::topLevelWidgets())
                if (auto* msg = qobject_cast<frmExportMsg*>(w); msg && msg->isVisible()) {
                    shown = msg->windowTitle() + "|" + msg->Label1->text() + "|" + msg->cmdCancel->text();
                    QTest::mouseClick(msg->cmdCancel, Qt::LeftButton);
                }
        });
        s.trigger("exportIncredible");
        QCOMPARE(shown, QString("Exporting Address Book|Ada, please wait while the contacts are exported...|Cancel"));
        QCOMPARE(s.file("Norway-Work (Incredible Mail).csv"), Header(ExportKind::Incredible) + "\r\n");
        frmExport form(s.window.get());
        ExpectModal([&](Form*) {
            form.optOperation[2]->click();
            QTest::mouseClick(form.cmdOK, Qt::LeftButton);
            shown = form.isVisible() ? "open" : "closed";
        });
        ShowModal(&form, s.window.get());
        QCOMPARE(shown, "closed");
        s.window->ListView1->clear();
        s.trigger("mnuExportOE");
        QCOMPARE(s.files(), QStringList({"Norway-Work (Incredible Mail).csv", "Norway-Work (Yahoo).csv"}));
        QCOMPARE(s.titles.size(), 3);
        QCOMPARE(s.boxes.lines(), QStringList({"Tandry|48|The export was cancelled. The file written so far may be incomplete.",
                                               kDone, "Tandry|48|Ada, there are no contacts in this category and country to export."}));
    }
};

QTEST_MAIN(TestExport)
#include "tst_export.moc"
