#include "import/forms/importsources.h"

#include <QWidget>
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "import/core/csvsources.h"
#include "platform/core/appversion.h"
#include "platform/core/msgbox.h"
#include "platform/forms/getopenfilename.h"
#include "store/core/text.h"

namespace {
SourceFactory& TestSources() {
    static SourceFactory factory;
    return factory;
}

// A mail client's address book that isn't read: found empty (true), or not
// found at all (false).
class UnreadAddressBook : public ImportSource {
public:
    explicit UnreadAddressBook(bool found) : found_(found) {}
    bool Load(SourceSink&) override { return found_; }

private:
    bool found_;
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
    case ImportKind::OE: return std::make_unique<UnreadAddressBook>(true);
    case ImportKind::MSO: return std::make_unique<UnreadAddressBook>(false);
    case ImportKind::Yahoo: return std::make_unique<CsvFileSource>(ReadYahooFile, form);
    case ImportKind::Incredi: return std::make_unique<CsvFileSource>(ReadIncrediFile, form);
    }
    return nullptr;
}

void SetImportSourcesForTest(SourceFactory factory) { TestSources() = std::move(factory); }
