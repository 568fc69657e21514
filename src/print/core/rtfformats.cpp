#include "print/core/rtfformats.h"

#include "print/core/rtfstate.h"

namespace {
RtfState& R() { return RtfModule; }

void Queue(const QString& close, const QString& open) {
    R().NextCodes << close;
    R().NextBegCodes << open;
}

// Whether a format with that closing tag is live (not ended) now.
bool IsLive(const QString& close) {
    for (qsizetype i = 0; i < R().Codes.size(); ++i)
        if (R().Codes[i] == close && !R().BegCodes[i].isEmpty()) return true;
    return false;
}
}  // namespace

void StartFormat(const RtfFormat& format) {
    if (!R().Codes.isEmpty() && R().Codes.back() == format.close && !R().BegCodes.back().isEmpty()) return;
    Queue(format.close, format.open);
}

void EndFormat(const QString& close) {
    if (IsLive(close)) {
        CloseFrom(close);
        return;
    }
    const qsizetype queued = R().NextCodes.indexOf(close);
    if (queued < 0) return;
    R().NextCodes.removeAt(queued);
    R().NextBegCodes.removeAt(queued);
}

void SetFormat(const QString& close, const QString& open) {
    const qsizetype queued = R().NextCodes.indexOf(close);
    if (queued >= 0) {
        R().NextBegCodes[queued] = open;
    } else if (IsLive(close)) {
        Queue(close, open);
        CloseFrom(close);
    } else {
        Queue(close, open);
    }
}

void CloseFrom(const QString& close) {
    const qsizetype from = R().Codes.lastIndexOf(close);
    if (from < 0) return;
    R().BegCodes[from].clear();
    for (qsizetype i = from + 1; i < R().Codes.size(); ++i) {
        Queue(R().Codes[i], R().BegCodes[i]);
        R().BegCodes[i].clear();
    }
}

void EndAllFormats() {
    for (QString& open : R().BegCodes) open.clear();
}

void ShiftNext() {
    R().Codes += R().NextCodes;
    R().BegCodes += R().NextBegCodes;
    R().NextCodes.clear();
    R().NextBegCodes.clear();
}

void PackCodes() {
    for (qsizetype i = R().Codes.size() - 1; i >= 0; --i) {
        if (!R().BegCodes[i].isEmpty()) continue;
        R().Codes.removeAt(i);
        R().BegCodes.removeAt(i);
    }
}

QString AllCloseCodes() {
    QString tags;
    for (qsizetype i = R().Codes.size() - 1; i >= 0; --i) tags += R().Codes[i];
    return tags;
}

QString AllBegCodes() { return R().BegCodes.join(QString()); }
