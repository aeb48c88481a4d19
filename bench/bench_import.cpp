// The contact import on files of 10 000 people, into a 10 000-guest wedding: a Google CSV export (couples
// sharing an RSVP ID, so that every two of them become a new invitation, labelled) and a vCard file of 10 000 cards, each read, previewed and
// imported; and the preview dialog filled and painted. Each import runs inside a transaction that is
// rolled back afterwards (not timed), so every round starts from the same database.
#include "BenchWedding.h"
#include "core/clsDB.h"
#include "guests/clsContactImport.h"
#include "guests/ui/frmContactImport.h"

#include <QApplication>
#include <QFile>
#include <QPixmap>
#include <benchmark/benchmark.h>

namespace {

constexpr int kPeople = 10000;
// Above the numbers of the demo wedding's invitations: the couples of the file make new ones.
constexpr int kFirstRSVP = 20001;
QString gCsv;
QString gVCard;

const char* const kFirst[] = {"John", "Mary", "Zoë", "Søren", "José", "Yui", "Anne-Marie", "Émile"};
const char* const kLast[] = {"Smith",    "O'Neill", "García", "Kierkegård",
                             "Nakamura", "Müller",  "Lee",    "Braun"};

QString Person(int i, int part) {
    return QString::fromUtf8(part == 0 ? kFirst[i % 8] : kLast[(i / 2) % 8]) + QString::number(i / 2);
}

bool WriteFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

bool WriteCsv(const QString& path) {
    QByteArray text = "First Name,Middle Name,Last Name,Name Prefix,E-mail 1 - Value,Phone 1 - Value,"
                      "Address 1 - Street,Address 1 - City,Address 1 - Region,Address 1 - Postal Code,Notes,"
                      "RSVP ID\r\n";
    for (int i = 0; i < kPeople; ++i) {
        text +=
            QStringLiteral("%1,,%2,%3,p%4@example.com,555-%4 ::: 555-0000,\"%4 Oak Street, Apt 2\",Salem,MA,"
                           "%5,\"Met at \"\"school\"\"\",%6\r\n")
                .arg(Person(i, 0), Person(i, 1), i % 2 == 0 ? QStringLiteral("Mr.") : QStringLiteral("Mrs."))
                .arg(i)
                .arg(1000 + i % 9000)
                .arg(kFirstRSVP + i / 2)
                .toUtf8();
    }
    return WriteFile(path, text);
}

bool WriteVCard(const QString& path) {
    QByteArray text;
    for (int i = 0; i < kPeople; ++i) {
        text += QStringLiteral("BEGIN:VCARD\r\nVERSION:3.0\r\nN:%1;%2;;;\r\nFN:%2 %1\r\n"
                               "EMAIL;TYPE=home,pref:p%3@example.com\r\nTEL;TYPE=cell:555-%3\r\n"
                               "ADR;TYPE=home:;;%3 Oak Street;Salem;MA;%4;USA\r\nNOTE:Met at school\\, "
                               "twice\\nand again\r\nEND:VCARD\r\n")
                    .arg(Person(i, 1), Person(i, 0))
                    .arg(i)
                    .arg(1000 + i % 9000)
                    .toUtf8();
    }
    return WriteFile(path, text);
}

QList<clsImportRow> PreviewOf(const QString& path) {
    const clsImportTable table = clsContactImport::ReadFile(path, QChar());
    QList<clsImportRow> rows =
        clsContactImport::Preview(table, clsContactImport::SuggestedMapping(table.Headers));
    clsContactImport::MarkDuplicates(rows);
    return rows;
}

void ReadPreviewImport(benchmark::State& state, const QString& path) {
    for (auto _ : state) {
        auto tx = std::make_unique<clsTransaction>(gDB());
        const clsImportResult result = clsContactImport::Import(PreviewOf(path), {});
        if (result.Added != kPeople) {
            state.SkipWithError("not every contact was added");
            break;
        }
        state.PauseTiming();
        tx.reset(); // rolled back: the next round starts from the same database
        state.ResumeTiming();
    }
}

void BM_ImportGoogleCsv(benchmark::State& state) {
    ReadPreviewImport(state, gCsv);
}
BENCHMARK(BM_ImportGoogleCsv)->Unit(benchmark::kMillisecond)->Iterations(3);

void BM_ImportVCard(benchmark::State& state) {
    ReadPreviewImport(state, gVCard);
}
BENCHMARK(BM_ImportVCard)->Unit(benchmark::kMillisecond)->Iterations(3);

// The file read and the preview dialog filled and painted, as the user waits for it.
void BM_ImportPreviewDialog(benchmark::State& state) {
    const clsImportTable table = clsContactImport::ReadFile(gCsv, QChar());
    for (auto _ : state) {
        frmContactImport preview;
        preview.resize(940, 560);
        preview.Load(table, false);
        QPixmap painted = preview.grab();
        benchmark::DoNotOptimize(painted);
    }
}
BENCHMARK(BM_ImportPreviewDialog)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    return RunOnDemoWedding(argc, argv, "vowren-bench-import", [](QString* message) {
        gCsv = QDir::temp().filePath(QStringLiteral("vowren-bench-google.csv"));
        gVCard = QDir::temp().filePath(QStringLiteral("vowren-bench-contacts.vcf"));
        if (WriteCsv(gCsv) && WriteVCard(gVCard))
            return true;
        *message = QStringLiteral("the files to import could not be written to %1").arg(QDir::tempPath());
        return false;
    });
}
