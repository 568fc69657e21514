#include "import/forms/importsources.h"

#include <QWidget>
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "import/core/csvsources.h"
#include "import/core/outlookexpress.h"
#include "import/core/outlookfolders.h"
#include "categories/forms/frmupdatecat.h"
#include "platform/core/appversion.h"
#include "platform/core/keldane.h"
#include "platform/core/msgbox.h"
#include "platform/forms/getopenfilename.h"
#include "store/core/text.h"

namespace {
SourceFactory& TestSources() {
    static SourceFactory factory;
    return factory;
}

// The desktop's address books through the address-book protocol.
class AddressBookSource : public ImportSource {
public:
    bool Load(SourceSink& sink) override { return LoadOutlookExpress(sink, GetAddress11); }
};

// Where Outlook would be started, the user picks an Outlook data file; a
// cancel is Outlook's absence. The folders become categories at once.
class OutlookDataFileSource : public ImportSource {
public:
    explicit OutlookDataFileSource(QWidget* form) : form_(form) {}
    bool Load(SourceSink& sink) override {
        const QString path = GetOpenFileName(form_->isVisible() ? form_ : form_->parentWidget(), form_->windowTitle(),
                                             QStringLiteral("*.pst *.ost"));
        if (path.isEmpty()) return false;
        return LoadOutlookFolders(OpenOutlookDataFile(path), sink, AddCatMSO);
    }

private:
    QWidget* form_;
};

// A CSV file chosen by the user and read by its reader. The form is not
// shown yet while it loads: the dialog stands over the form's owner.
class CsvFileSource : public ImportSource {
public:
    using Reader = CsvRead (*)(const QString& path, SourceSink& sink);
    CsvFileSource(Reader reader, QWidget* form) : reader_(reader), form_(form) {}

    bool Load(SourceSink& sink) override {
        const QString path = ChooseCsvFile(form_->isVisible() ? form_ : form_->parentWidget());
        if (path.isEmpty()) return false;
        const CsvRead read = reader_(path, sink);
        const QString words = GetLanguageString(617) + "\r\n" + WithOwnerName(GetLanguageString(618));
        if (read == CsvRead::NotCsv) MsgBox(words, MsgCritical, GetLanguageString(301));
        if (read == CsvRead::BadContent) MsgBox(words, 0, AppTitle());
        return read == CsvRead::Read;
    }

private:
    Reader reader_;
    QWidget* form_;
};
}  // namespace

QString ChooseCsvFile(QWidget* owner) {
    return TrimSpaces(GetOpenFileName(owner, GetLanguageString(303), QStringLiteral("*.csv")));
}

std::unique_ptr<ImportSource> SourceFor(ImportKind kind, QWidget* form) {
    if (TestSources()) return TestSources()(kind);
    switch (kind) {
    case ImportKind::OE: return std::make_unique<AddressBookSource>();
    case ImportKind::MSO: return std::make_unique<OutlookDataFileSource>(form);
    case ImportKind::Yahoo: return std::make_unique<CsvFileSource>(ReadYahooFile, form);
    case ImportKind::Incredi: return std::make_unique<CsvFileSource>(ReadIncrediFile, form);
    }
    return nullptr;
}

void SetImportSourcesForTest(SourceFactory factory) { TestSources() = std::move(factory); }
