#include "reports/clsSQLCatalogue.h"

#include "guests/modImportText.h"
#include "platform/VowrenPaths.h"
#include "platform/clsPrivateFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <array>
#include <optional>

// The catalogue that comes with the program sits in a resource file of a static library: it is linked
// in by name.
static void InitCatalogueResource() {
    Q_INIT_RESOURCE(sqlcatalogue);
}

namespace {

// The fields in the order a line is tested for them: the first start tag a line contains wins.
constexpr std::array<const char*, 6> kFieldTags = {"SQL_CATEGORY", "SQL_CATEGORY_ICON", "SQL_NAME",
                                                   "DATE_ADDED",   "SQL_DESC",          "SQL"};

QString& Field(clsSQL_XML& item, size_t tag) {
    switch (tag) {
    case 0:
        return item.SQL_CATEGORY;
    case 1:
        return item.SQL_CATEGORY_ICON;
    case 2:
        return item.SQL_NAME;
    case 3:
        return item.DATE_ADDED;
    case 4:
        return item.SQL_DESC;
    default:
        return item.SQL;
    }
}

// Blanks only: a tab or another kind of white space stays, and an item tag beside it is no item tag.
QString TrimBlanks(const QString& line) {
    qsizetype first = 0;
    qsizetype last = line.size();
    while (first < last && line.at(first) == QLatin1Char(' '))
        ++first;
    while (last > first && line.at(last - 1) == QLatin1Char(' '))
        --last;
    return line.mid(first, last - first);
}

// The line less the field's start and end tags, CR, LF and tabs.
QString FieldValue(QString line, const QString& tag) {
    line.remove(QLatin1Char('<') + tag + QLatin1Char('>'));
    line.remove(QStringLiteral("</") + tag + QLatin1Char('>'));
    line.remove(QLatin1Char('\r'));
    line.remove(QLatin1Char('\n'));
    line.remove(QLatin1Char('\t'));
    return line;
}

QString Named(const clsSQL_XML& item) {
    return item.SQL_NAME.isEmpty() ? QStringLiteral("without a name")
                                   : QLatin1Char('"') + item.SQL_NAME + QLatin1Char('"');
}

// Reads the lines of one catalogue, item by item.
class Reader {
public:
    explicit Reader(clsSQLCatalogue& catalogue) : mCatalogue(catalogue) {}

    void Line(const QString& raw, int number) {
        const QString line = TrimBlanks(raw);
        if (line == QLatin1String("<SQL_ITEM>")) {
            if (mItem)
                Skip(QStringLiteral("Line %1: the query %2 begun on line %3 has no end tag; it is left out.")
                         .arg(number)
                         .arg(Named(*mItem))
                         .arg(mItemLine));
            mItem = clsSQL_XML();
            mItemLine = number;
        } else if (line == QLatin1String("</SQL_ITEM>")) {
            if (mItem)
                Finish(number);
        } else if (mItem) {
            for (size_t tag = 0; tag < kFieldTags.size(); ++tag) {
                const QString name = QLatin1String(kFieldTags[tag]);
                if (line.contains(QLatin1Char('<') + name + QLatin1Char('>'))) {
                    Field(*mItem, tag) = FieldValue(line, name);
                    break;
                }
            }
        }
    }

    void End() {
        if (mItem)
            Skip(QStringLiteral("The file ends inside the query %1 begun on line %2; it is left out.")
                     .arg(Named(*mItem))
                     .arg(mItemLine));
        mItem.reset();
    }

private:
    void Finish(int number) {
        if (mItem->SQL.isEmpty())
            Skip(QStringLiteral("Line %1: the query %2 has no statement; it is left out.")
                     .arg(number)
                     .arg(Named(*mItem)));
        else
            mCatalogue.Items << *mItem;
        mItem.reset();
    }
    void Skip(const QString& problem) { mCatalogue.Problems << problem; }

    clsSQLCatalogue& mCatalogue;
    std::optional<clsSQL_XML> mItem;
    int mItemLine = 0;
};

// Why a text gave no item at all, when nothing else was said.
QString NothingFound(const QString& text) {
    if (text.trimmed().isEmpty())
        return QStringLiteral("The file is empty.");
    if (!text.contains(QStringLiteral("\r\n")) && text.contains(QLatin1Char('\n')))
        return QStringLiteral("The file's lines end in LF alone; the catalogue's lines end in CR LF.");
    return QStringLiteral("The file holds no query.");
}

} // namespace

clsSQLCatalogue clsSQLCatalogue::FromText(const QString& text) {
    clsSQLCatalogue catalogue;
    Reader reader(catalogue);
    const QStringList lines = text.split(QStringLiteral("\r\n"));
    for (qsizetype i = 0; i < lines.size(); ++i)
        reader.Line(lines[i], static_cast<int>(i + 1));
    reader.End();
    if (catalogue.Items.isEmpty() && catalogue.Problems.isEmpty())
        catalogue.Problems << NothingFound(text);
    return catalogue;
}

clsSQLCatalogue clsSQLCatalogue::FromBytes(const QByteArray& bytes) {
    QStringList reading;
    QByteArray read = modImportText::WithoutUtf8Bom(bytes);
    if (read.size() > MaxBytes) {
        // The last whole line within the bound: a character cut in two would make the rest look foreign.
        const qsizetype end = read.lastIndexOf("\r\n", MaxBytes - 2);
        read.truncate(end < 0 ? MaxBytes : end + 2);
        reading << QStringLiteral("Only the first %L1 KB of the file were read.").arg(MaxBytes / 1024);
    }
    QString text;
    if (modImportText::IsValidUtf8(read)) {
        text = QString::fromUtf8(read);
    } else {
        text = modImportText::DecodeWindows1252(read);
        reading << QStringLiteral("The file is not UTF-8; it was read as Windows-1252.");
    }
    clsSQLCatalogue catalogue = FromText(text);
    catalogue.Problems = reading + catalogue.Problems;
    return catalogue;
}

clsSQLCatalogue clsSQLCatalogue::FromFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        clsSQLCatalogue none;
        none.Problems
            << QStringLiteral("The catalogue %1 could not be read: %2.").arg(path, file.errorString());
        return none;
    }
    return FromBytes(file.read(MaxBytes + 1));
}

clsSQLCatalogue clsSQLCatalogue::Shipped() {
    static const bool loaded = (InitCatalogueResource(), true);
    Q_UNUSED(loaded);
    return FromFile(QStringLiteral(":/reports/sql.xml"));
}

QString clsSQLCatalogue::KeptPath() {
    return VowrenPaths::Join(VowrenPaths::DataRoot(), QStringLiteral("sql.xml"));
}

clsSQLCatalogue clsSQLCatalogue::Current() {
    if (!QFileInfo::exists(KeptPath()))
        return Shipped();
    clsSQLCatalogue kept = FromFile(KeptPath());
    if (!kept.Items.isEmpty())
        return kept;
    clsSQLCatalogue shipped = Shipped();
    shipped.Problems.prepend(
        QStringLiteral("The downloaded catalogue %1 holds no query (%2); the program's own "
                       "is shown.")
            .arg(KeptPath(), kept.Problems.join(QLatin1Char(' '))));
    return shipped;
}

bool clsSQLCatalogue::Keep(const QByteArray& bytes, QString* problem) {
    const clsSQLCatalogue read = FromBytes(bytes);
    QString reason;
    if (read.Items.isEmpty()) {
        reason = QStringLiteral("it holds no query: ") + read.Problems.join(QLatin1Char(' '));
    } else {
        QDir().mkpath(QFileInfo(KeptPath()).absolutePath());
        clsPrivateFile file(KeptPath());
        if (!file.Open() || !file.Write(bytes.constData(), bytes.size()) || !file.Commit())
            reason = file.ErrorString();
    }
    if (problem)
        *problem = reason;
    return reason.isEmpty();
}

const clsSQL_XML* clsSQLCatalogue::Find(const QString& name) const {
    for (const clsSQL_XML& item : Items) {
        if (item.SQL_NAME.compare(name.trimmed(), Qt::CaseInsensitive) == 0)
            return &item;
    }
    return nullptr;
}

QStringList clsSQLCatalogue::Categories() const {
    QStringList categories;
    for (const clsSQL_XML& item : Items) {
        if (!categories.contains(item.SQL_CATEGORY))
            categories << item.SQL_CATEGORY;
    }
    return categories;
}
