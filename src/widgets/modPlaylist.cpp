#include "widgets/modPlaylist.h"

#include "core/clsApp.h"
#include "core/clsDICT.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace modPlaylist {
namespace {

QString Escaped(const QString& text) {
    return text.toHtmlEscaped();
}

QString Indented(int blanks, const QString& line) {
    return QString(blanks, QLatin1Char(' ')) + line;
}

} // namespace

bool IsSongFile(const QString& fileName) {
    static const QStringList kinds = {QStringLiteral(".M4P"), QStringLiteral(".ACC"), QStringLiteral(".WMA"),
                                      QStringLiteral(".WAV"), QStringLiteral(".MP3")};
    const QString upper = fileName.toUpper();
    for (const QString& kind : kinds)
        if (upper.contains(kind))
            return true;
    return false;
}

QStringList SongFiles(const QString& folder) {
    QStringList songs;
    for (const QString& name : QDir(folder).entryList(QDir::Files, QDir::Name | QDir::IgnoreCase))
        if (IsSongFile(name))
            songs << name;
    return songs;
}

QList<Entry> Entries() {
    QList<Entry> entries{{QStringLiteral("(All)"), QStringLiteral("0"), QStringLiteral("All_Songs")}};
    clsDICT lists(clsDICT::Songlist);
    for (const clsDICT& list : lists.OpenRecords(clsDICT::Songlist))
        entries.append(
            {list.TX + QStringLiteral(" (") + QString::number(clsSONG::Total(list.ID)) + QLatin1Char(')'),
             list.ID, list.TX});
    return entries;
}

QString DefaultPath(const Entry& entry) {
    return gApp().PlaylistPath() + QLatin1Char('/') + entry.Name + QStringLiteral(".wpl");
}

QStringList Lines(const QString& title, const QList<clsSONG>& songs) {
    QStringList lines = {
        QStringLiteral("<?wpl version=\"1.0\"?>"),
        QStringLiteral("<smil>"),
        Indented(4, QStringLiteral("<head>")),
        Indented(8, QStringLiteral("<meta name=\"Generator\" content=\"Vowren Planner\"/>")),
        Indented(8, QStringLiteral("<meta name=\"ItemCount\" content=\"") + QString::number(songs.size()) +
                        QStringLiteral("\"/>")),
        Indented(8, QStringLiteral("<author/>")),
        Indented(8, QStringLiteral("<title>") + Escaped(title) + QStringLiteral("</title>")),
        Indented(4, QStringLiteral("</head>")),
        Indented(4, QStringLiteral("<body>")),
        Indented(8, QStringLiteral("<seq>")),
    };
    for (const clsSONG& song : songs)
        lines << Indented(12, QStringLiteral("<media src=\"") + Escaped(song.SONG_FILE_PATH_TX) +
                                  QStringLiteral("\"/>"));
    lines << Indented(8, QStringLiteral("</seq>")) << Indented(4, QStringLiteral("</body>"))
          << QStringLiteral("</smil>");
    return lines;
}

bool Write(const QString& path, const QString& songlistID, const QString& title, QString* error) {
    const QString listID = songlistID == QLatin1String("0") ? QString() : songlistID;
    const QByteArray text =
        (Lines(title, clsSONG::OpenRecords(listID)).join(QStringLiteral("\r\n")) + QStringLiteral("\r\n"))
            .toUtf8();
    QDir().mkpath(QFileInfo(path).absolutePath());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit()) {
        if (error)
            *error = QStringLiteral("The playlist could not be written to \"") + path +
                     QStringLiteral("\": ") + file.errorString() +
                     QStringLiteral(".\n\nChoose another folder or file name.");
        return false;
    }
    return true;
}

} // namespace modPlaylist
