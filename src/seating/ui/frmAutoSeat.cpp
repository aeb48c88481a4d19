#include "seating/ui/frmAutoSeat.h"

#include "core/RecordIO.h"
#include "core/ShowMessage.h"
#include "seating/clsDINING_TABLE.h"
#include "seating/modAutoSeat.h"
#include "seating/ui/modTableShapes.h"

#include <QCheckBox>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QGraphicsScene>
#include <QGraphicsTextItem>
#include <QGraphicsView>
#include <QHBoxLayout>
#include <QHash>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QSplitter>
#include <QThread>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

namespace {

constexpr qreal kTableSide = 40;
constexpr qreal kNamesWidth = 120;
// Two tables stand at least this far apart on the proposal's floor, so that the names under them fit.
constexpr qreal kRoomPerTable = 210;

QPointF PixelsOf(const clsDINING_TABLE& table) {
    return {table.POS_X.toDouble() / modSeating::kTwipsPerPixel,
            table.POS_Y.toDouble() / modSeating::kTwipsPerPixel};
}

// How much wider than the table layout the proposal's floor is drawn: the closest two tables get room.
qreal Spread(const QList<clsDINING_TABLE>& tables) {
    qreal closest = 0;
    for (qsizetype i = 0; i < tables.size(); ++i)
        for (qsizetype j = i + 1; j < tables.size(); ++j) {
            const QPointF d = PixelsOf(tables[i]) - PixelsOf(tables[j]);
            const qreal apart = std::max(std::abs(d.x()), std::abs(d.y()));
            if (apart > 0 && (closest == 0 || apart < closest))
                closest = apart;
        }
    return closest > 0 ? std::max<qreal>(1, kRoomPerTable / closest) : 1;
}

QPixmap TablePicture(int shape) {
    QPixmap picture(QSize(qRound(kTableSide), qRound(kTableSide)));
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintTableShape(painter, QRectF(0, 0, kTableSide, kTableSide), shape, false);
    return picture;
}

QPushButton* Button(const QString& caption, const char* name, QWidget* parent) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(QLatin1String(name));
    return button;
}

} // namespace

frmAutoSeat::frmAutoSeat(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmAutoSeat"));
    setWindowTitle(QStringLiteral("Seat Automatically"));
    chkKeepSeated = new QCheckBox(QStringLiteral("&Keep seated guests where they are"), this);
    chkKeepSeated->setObjectName(QStringLiteral("chkKeepSeated"));
    spnSeconds = new QSpinBox(this);
    spnSeconds->setObjectName(QStringLiteral("spnSeconds"));
    spnSeconds->setRange(1, 600);
    spnSeconds->setValue(5);
    spnSeconds->setPrefix(QStringLiteral("Time limit: "));
    spnSeconds->setSuffix(QStringLiteral(" s"));
    cmdStart = Button(QStringLiteral("&Seat"), "cmdStart", this);
    prgSeat = new QProgressBar(this);
    prgSeat->setObjectName(QStringLiteral("prgSeat"));
    prgSeat->setRange(0, 1000);
    prgSeat->setTextVisible(false);
    cmdStop = Button(QStringLiteral("S&top and Show Best"), "cmdStop", this);
    cmdStop->setToolTip(QStringLiteral("Stop now and propose the best chart found so far"));
    cmdCancel = Button(QStringLiteral("Cancel"), "cmdCancel", this);
    lblScore =
        new QLabel(QStringLiteral("The seater keeps every invitation at one table, never seats a \"Keep "
                                  "apart\" pair together, and seats as many as the tables hold."),
                   this);
    lblScore->setObjectName(QStringLiteral("lblScore"));
    lblScore->setWordWrap(true);
    mFloor = new QGraphicsScene(this);
    picProposal = new QGraphicsView(mFloor, this);
    picProposal->setObjectName(QStringLiteral("picProposal"));
    picProposal->setRenderHint(QPainter::Antialiasing);
    picProposal->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    txtExplanation = new QPlainTextEdit(this);
    txtExplanation->setObjectName(QStringLiteral("txtExplanation"));
    txtExplanation->setReadOnly(true);
    cmdApply = Button(QStringLiteral("&Apply"), "cmdApply", this);
    cmdDiscard = Button(QStringLiteral("&Discard"), "cmdDiscard", this);

    auto* options = new QHBoxLayout;
    options->addWidget(chkKeepSeated);
    options->addWidget(spnSeconds);
    options->addStretch(1);
    options->addWidget(cmdStart);
    auto* progress = new QHBoxLayout;
    progress->addWidget(prgSeat, 1);
    progress->addWidget(cmdStop);
    progress->addWidget(cmdCancel);
    auto* split = new QSplitter(this);
    split->addWidget(picProposal);
    split->addWidget(txtExplanation);
    split->setSizes({620, 380});
    auto* answers = new QDialogButtonBox(this);
    answers->addButton(cmdApply, QDialogButtonBox::AcceptRole);
    answers->addButton(cmdDiscard, QDialogButtonBox::RejectRole);
    auto* column = new QVBoxLayout(this);
    column->addLayout(options);
    column->addLayout(progress);
    column->addWidget(lblScore);
    column->addWidget(split, 1);
    column->addWidget(answers);
    resize(1040, 680);

    mTicker = new QTimer(this);
    mTicker->setInterval(50);
    connect(mTicker, &QTimer::timeout, this, [this] {
        const double seconds = double(QDateTime::currentMSecsSinceEpoch() - mStartedMs) / 1000.0;
        prgSeat->setValue(std::max(mDone.load(), int(1000 * std::min(1.0, seconds / spnSeconds->value()))));
    });
    connect(cmdStart, &QPushButton::clicked, this, &frmAutoSeat::Start);
    connect(cmdCancel, &QPushButton::clicked, this, &frmAutoSeat::Cancel);
    connect(cmdStop, &QPushButton::clicked, this, &frmAutoSeat::Stop);
    connect(cmdApply, &QPushButton::clicked, this, &frmAutoSeat::Apply);
    connect(cmdDiscard, &QPushButton::clicked, this, &frmAutoSeat::Discard);
    ShowState();
}

frmAutoSeat::~frmAutoSeat() {
    if (mWorker) {
        mCancelled = true;
        mWorker->wait();
    }
}

bool frmAutoSeat::ReadWedding(SeatingInstance& instance) {
    if (!RecordIO::Attempt([&] { instance = modAutoSeat::ReadInstance(); }))
        return false;
    if (instance.Tables.isEmpty()) {
        ShowMessage(modAutoSeat::NoTablesMessage(), Msg::OKOnly | Msg::Exclamation);
        return false;
    }
    return true;
}

SeaterOptions frmAutoSeat::Options() {
    SeaterOptions options;
    options.KeepSeated = chkKeepSeated->isChecked();
    options.Seconds = spnSeconds->value();
    mDone = 0;
    mCancelled = false;
    mKeepBest = false;
    options.Progress = [this](double done, long) {
        mDone = int(done * 1000);
        return !mCancelled.load();
    };
    return options;
}

void frmAutoSeat::Start() {
    SeatingInstance instance;
    if (mWorker || !ReadWedding(instance))
        return;
    mHasProposal = false;
    // The seater reads nothing from the database: the wedding goes to the other thread whole.
    mWorker =
        QThread::create([this, instance, options = Options()] { mChart = clsSeater(instance).Run(options); });
    connect(mWorker, &QThread::finished, this, &frmAutoSeat::Finished);
    mStartedMs = QDateTime::currentMSecsSinceEpoch();
    mTicker->start();
    mWorker->start();
    ShowState();
}

void frmAutoSeat::Cancel() {
    if (mWorker)
        mCancelled = true;
    else
        reject();
}

// The seater stops as it would on Cancel, and what it found so far is proposed.
void frmAutoSeat::Stop() {
    if (!mWorker)
        return;
    mKeepBest = true;
    mCancelled = true;
}

void frmAutoSeat::ProposeNow() {
    SeatingInstance instance;
    if (mWorker || !ReadWedding(instance))
        return;
    mChart = clsSeater(instance).Run(Options());
    ShowProposal();
}

void frmAutoSeat::Finished() {
    mTicker->stop();
    mWorker->deleteLater();
    mWorker = nullptr;
    const bool discarded = mCancelled && !mKeepBest;
    prgSeat->setValue(discarded ? 0 : 1000);
    if (discarded) {
        lblScore->setText(QStringLiteral("Cancelled: nothing was proposed, nothing was written."));
        ShowState();
        return;
    }
    ShowProposal();
}

void frmAutoSeat::ShowProposal() {
    mHasProposal = true;
    const QString stopped =
        mChart.Cancelled ? QStringLiteral("Stopped early: the best chart found so far. ") : QString();
    lblScore->setText(
        stopped + QStringLiteral("Score %1: %2 seated, %3 unseated, %4 hard rules broken, %5 pairs of one side "
                       "at a table (found in %6 s). Nothing is written until you press Apply.")
            .arg(mChart.Score)
            .arg(mChart.Seated)
            .arg(mChart.Unseated)
            .arg(mChart.HardViolations)
            .arg(mChart.FriendPairs)
            .arg(mChart.Seconds, 0, 'f', 1));
    prgSeat->setValue(prgSeat->maximum());
    txtExplanation->setPlainText(mChart.Explanation());
    DrawFloor();
    ShowState();
}

// Every table where it stands on the floor, with the names the proposal gives it.
void frmAutoSeat::DrawFloor() {
    mFloor->clear();
    const QList<clsDINING_TABLE> tables = RecordIO::Read([] { return clsDINING_TABLE::OpenRecords(); });
    QHash<QString, const SeatedTable*> seated;
    for (const SeatedTable& table : mChart.Tables)
        seated.insert(table.TableId, &table);
    const qreal spread = Spread(tables);
    QPointF origin(0, 0);
    if (!tables.isEmpty()) {
        origin = PixelsOf(tables.first());
        for (const clsDINING_TABLE& table : tables)
            origin =
                QPointF(std::min(origin.x(), PixelsOf(table).x()), std::min(origin.y(), PixelsOf(table).y()));
    }
    for (const clsDINING_TABLE& table : tables) {
        const QPointF at = (PixelsOf(table) - origin) * spread + QPointF(8, 8);
        const SeatedTable* guests = seated.value(table.DINING_TABLE_ID);
        auto* picture = mFloor->addPixmap(TablePicture(table.DINING_TABLE_TYPE_ID.toInt()));
        picture->setPos(at + QPointF((kNamesWidth - kTableSide) / 2, 0));
        auto* number = mFloor->addSimpleText(QStringLiteral("#") + table.DINING_TABLE_NB);
        number->setPos(at + QPointF((kNamesWidth - number->boundingRect().width()) / 2, kTableSide));
        auto* names = mFloor->addText(guests ? guests->Names.join(QLatin1Char('\n')) : QString());
        names->setTextWidth(kNamesWidth);
        QFont small = names->font();
        small.setPointSizeF(7);
        names->setFont(small);
        names->setPos(at + QPointF(0, kTableSide + number->boundingRect().height()));
        if (guests)
            names->setToolTip(guests->Reasons.join(QLatin1Char('\n')));
    }
    mFloor->setSceneRect(mFloor->itemsBoundingRect().adjusted(0, 0, 8, 8));
    ShowTopLeft();
}

void frmAutoSeat::ShowTopLeft() {
    picProposal->horizontalScrollBar()->setValue(picProposal->horizontalScrollBar()->minimum());
    picProposal->verticalScrollBar()->setValue(picProposal->verticalScrollBar()->minimum());
}

void frmAutoSeat::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    ShowTopLeft();
}

void frmAutoSeat::ShowState() {
    const bool running = mWorker != nullptr;
    chkKeepSeated->setEnabled(!running);
    spnSeconds->setEnabled(!running);
    cmdStart->setEnabled(!running);
    cmdCancel->setText(running ? QStringLiteral("Cancel") : QStringLiteral("Close"));
    cmdStop->setVisible(running);
    cmdApply->setEnabled(!running && mHasProposal);
    cmdDiscard->setEnabled(!running && mHasProposal);
}

void frmAutoSeat::Apply() {
    if (!mHasProposal || mWorker)
        return;
    modAutoSeat::SeatChanges changes;
    if (!RecordIO::Attempt([&] { changes = modAutoSeat::Changes(mChart); }))
        return;
    if (OnApply && !OnApply(changes.Before, changes.After))
        return; // the message has been shown; the proposal stays
    accept();
}

void frmAutoSeat::Discard() {
    if (mWorker)
        return;
    mHasProposal = false;
    mFloor->clear();
    txtExplanation->clear();
    reject();
}
