#include "reports/ui/clsCatalogueDownload.h"

#include "reports/clsSQLCatalogue.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

clsCatalogueDownload::clsCatalogueDownload(QObject* parent) : QObject(parent) {
    mClock.setSingleShot(true);
    connect(&mClock, &QTimer::timeout, this, [this] {
        GiveUp(
            QStringLiteral("The download of the custom reports from %1 took longer than %2 seconds and was "
                           "given up.")
                .arg(mHost)
                .arg(TimeoutMs / 1000.0));
    });
}

clsCatalogueDownload::~clsCatalogueDownload() {
    Drop();
}

void clsCatalogueDownload::Drop() {
    mClock.stop();
    QNetworkReply* reply = mReply.data();
    if (!reply)
        return;
    mReply.clear();
    reply->disconnect(this);
    reply->abort();
    reply->deleteLater();
}

void clsCatalogueDownload::Start(const QString& address) {
    Drop();
    mBytes.clear();
    mGivenUp.clear();
    const QUrl url(address.trimmed(), QUrl::StrictMode);
    if (address.trimmed().isEmpty()) {
        End(false,
            QStringLiteral("No address is set for the custom reports (the setting CustomReportsURL)."));
        return;
    }
    if (!url.isValid() || (url.scheme() != QLatin1String("http") && url.scheme() != QLatin1String("https"))) {
        End(false,
            QStringLiteral("The address of the custom reports, \"%1\", is not a web address.").arg(address));
        return;
    }
    mHost = url.host();
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    mReply = mNetwork.get(request);
    connect(mReply, &QNetworkReply::metaDataChanged, this, [this] {
        const QVariant length = mReply->header(QNetworkRequest::ContentLengthHeader);
        if (length.isValid())
            CheckSize(length.toLongLong());
    });
    connect(mReply, &QNetworkReply::readyRead, this, &clsCatalogueDownload::Received);
    connect(mReply, &QNetworkReply::finished, this, &clsCatalogueDownload::Done);
    mClock.start(TimeoutMs);
}

void clsCatalogueDownload::Received() {
    if (!mReply || !mGivenUp.isEmpty())
        return;
    mBytes += mReply->read(MaxBytes + 1 - mBytes.size());
    CheckSize(mBytes.size());
}

void clsCatalogueDownload::CheckSize(qint64 announced) {
    if (announced > MaxBytes)
        GiveUp(TooBig());
}

QString clsCatalogueDownload::TooBig() const {
    return QStringLiteral("The custom reports file at %1 is larger than %L2 KB and was not downloaded.")
        .arg(mHost)
        .arg(MaxBytes / 1024);
}

void clsCatalogueDownload::GiveUp(const QString& reason) {
    if (!mReply || !mGivenUp.isEmpty())
        return;
    mGivenUp = reason;
    mReply->abort(); // finished follows, and Done tells why
}

void clsCatalogueDownload::Done() {
    mClock.stop();
    QNetworkReply* reply = mReply.data();
    if (!reply)
        return;
    mReply.clear();
    reply->deleteLater();
    if (!mGivenUp.isEmpty()) {
        End(false, mGivenUp);
        return;
    }
    if (reply->error() != QNetworkReply::NoError) {
        const QVariant status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
        End(false,
            status.isValid()
                ? QStringLiteral("The server %1 answered %2 %3: no custom reports were downloaded.")
                      .arg(mHost, status.toString(),
                           reply->attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString())
                : QStringLiteral("%1 could not be reached (%2). Is this computer offline? The custom reports "
                                 "listed are those kept before.")
                      .arg(mHost, reply->errorString()));
        return;
    }
    mBytes += reply->readAll();
    if (mBytes.size() > MaxBytes) {
        End(false, TooBig());
        return;
    }
    QString problem;
    if (!clsSQLCatalogue::Keep(mBytes, &problem)) {
        End(false, QStringLiteral("The file from %1 was not kept: %2").arg(mHost, problem));
        return;
    }
    const clsSQLCatalogue catalogue = clsSQLCatalogue::FromBytes(mBytes);
    const qsizetype count = catalogue.Items.size();
    QString status = QStringLiteral("%1 custom report%2 downloaded from %3.")
                         .arg(count)
                         .arg(count == 1 ? QString() : QStringLiteral("s"), mHost);
    if (!catalogue.Problems.isEmpty())
        status += QStringLiteral(" Left out: ") + catalogue.Problems.join(QLatin1Char(' '));
    End(true, status);
}

void clsCatalogueDownload::End(bool ok, const QString& status) {
    emit Finished(ok, status);
}
