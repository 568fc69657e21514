// The about box, opened from the Help menu: its texts from the libraries and
// the version, and the system information tool, found or not.
#include <QLabel>
#include <QPushButton>
#include "platform/core/sysinfotool.h"
#include "services/forms/frmabout.h"
#include "support/formstore.h"

namespace {
// The form's caption and the texts of its labels and buttons, in order.
QStringList Texts(const Form* f) {
    QStringList texts{f->windowTitle()};
    for (const char* name : {"lblTitle", "lblVersion", "lblDescription", "lblDisclaimer"})
        texts << Control<QLabel>(f, name)->text();
    return texts << Control<QPushButton>(f, "cmdOK")->text() << Control<QPushButton>(f, "cmdSysInfo")->text();
}
}  // namespace

class TestAbout : public QObject {
    Q_OBJECT
private slots:
    void cleanup() { SetSystemInformationToolsForTest({}); }

    void textsAndNoSystemInformationTool() {
        MainStore s("\"00001\",\"Main\"\r\n", "");
        s.open();
        UnloadAllLibraries();  // every %s of 303, in any case, is the product's name
        s.store.put("edition0409.dll", "303=%S: about %s\n100=OK\n112=&System Info...\n500=No warranty.\n");
        LoadAllLibraries(s.store);
        SetSystemInformationToolsForTest({"no-such-tool-" + QString::number(QCoreApplication::applicationPid())});
        QStringList texts;
        bool openAfterMessage = false;
        ExpectModal([&](Form* f) {
            texts = Texts(f);
            QTest::mouseClick(Control<QPushButton>(f, "cmdSysInfo"), Qt::LeftButton);
            openAfterMessage = f->isVisible();
            QTest::mouseClick(Control<QPushButton>(f, "cmdOK"), Qt::LeftButton);
        });
        s.trigger("mnuHelpAbout");
        QCOMPARE(texts, QStringList({"Tandry: about Tandry", "Tandry", "Version 1.0.0", GetLanguageString(619),
                                     "No warranty.", "OK", "&System Info..."}));
        QCOMPARE(s.boxes.lines(), QStringList("Tandry|0|System Information Is Unavailable At This Time"));
        QVERIFY(openAfterMessage);
        QCOMPARE(PendingModalScripts(), 0);
    }

    void aToolFoundIsStartedWithoutWaiting() {
        FormStore s;
        const QString tool = s.store.appFile("sysinfo-tool");
        s.store.put("sysinfo-tool", "#!/bin/sh\ntouch \"$0.ran\"\n");
        QFile::setPermissions(tool, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        SetSystemInformationToolsForTest({"no-such-tool", tool});
        StartSysInfo();
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(tool + ".ran"), 5000);
        QCOMPARE(s.boxes.count(), 0);
    }
};

QTEST_MAIN(TestAbout)
#include "tst_about.moc"
