#pragma once
// The update check's two texts: the body the program sends, naming itself
// and its version, and the parser of the tagged reply. The server compares
// the versions; the program only reads back its verdict.
#include <QString>

// "appid=TA&major=1&minor=0&rev=0": the numbers in plain decimal.
QString UpdateRequestBody(const QString& appId, int major, int minor, int revision);

// Reads every <update> entry of the reply, in order, into the three
// outputs; a later entry overwrites what an earlier one set. An output that
// no entry sets keeps the value it came with.
void ParseUpdate(const QString& response, QString& code, QString& version, QString& url);
