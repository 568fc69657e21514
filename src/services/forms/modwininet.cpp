#include "services/forms/modwininet.h"

#include "platform/core/codepage.h"
#include "platform/forms/wininet.h"
#include "services/core/httpaddress.h"

QString HttpRequest(const QString& address, const QString& body, int port, const QString& userName,
                    const QString& password, QString& statusCode, QString& statusText) {
    InternetRequest request;
    request.agent = QStringLiteral("Vellumark_App");
    const HttpAddress split = SplitHttpAddress(address);
    request.host = split.host;
    request.path = split.path;
    if (!body.isEmpty()) {
        request.method = QStringLiteral("POST");
        request.headers = QStringLiteral("Content-Type: application/x-www-form-urlencoded\r\n");
    } else {
        request.method = QStringLiteral("GET");
    }
    request.flags = port == 443 ? kInternetFlagSecure | kInternetFlagIgnoreCertCnInvalid : kInternetFlagReload;
    request.port = quint16(port);
    request.userName = userName;
    request.password = password;
    request.body = ToAnsi(body);
    const InternetAnswer answer = SendInternetRequest(request);
    statusCode = answer.statusCode;
    statusText = answer.statusText;
    return FromAnsi(answer.body);
}
