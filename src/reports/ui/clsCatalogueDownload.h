#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>

class QNetworkReply;

// Fetches a newer catalogue of custom reports and keeps it (clsSQLCatalogue::Keep) while the window goes
// on: the transfer runs in the event loop, is given up past MaxBytes or TimeoutMs, and ends in one
// Finished with a line for the user. A file that holds no query is not kept.
class clsCatalogueDownload : public QObject {
    Q_OBJECT
public:
    explicit clsCatalogueDownload(QObject* parent = nullptr);
    ~clsCatalogueDownload() override;

    // The bounds of one transfer, from its start.
    int TimeoutMs = 10000;
    qint64 MaxBytes = 1024 * 1024;

    // Starts fetching the address; a transfer under way is given up first. With no usable address
    // Finished follows at once.
    void Start(const QString& address);
    bool IsRunning() const { return !mReply.isNull(); }

signals:
    // ok: a catalogue was fetched and kept. status: what happened, in one line.
    void Finished(bool ok, const QString& status);

private:
    // Gives up a transfer under way without a word.
    void Drop();
    void Received();
    void CheckSize(qint64 announced);
    void GiveUp(const QString& reason);
    void Done();
    QString TooBig() const;
    void End(bool ok, const QString& status);

    QNetworkAccessManager mNetwork;
    QPointer<QNetworkReply> mReply;
    QTimer mClock;
    QByteArray mBytes;
    QString mHost;
    QString mGivenUp; // why the transfer was cut short, when it was
};
