#include "shell/frmVowren.h"

#include "core/RecordIO.h"
#include "core/clsApp.h"
#include "core/modSubMain.h"
#include "shell/mdiMain.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPainterPath>
#include <QRegion>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

frmVowren::frmVowren(bool runOnShow, QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint), mRunOnShow(runOnShow) {
    mdiMain::InitResources();
    setObjectName(QStringLiteral("frmVowren"));
    setFixedSize(480, 300);
    // Rounded corners that need no compositing window manager.
    QPainterPath outline;
    outline.addRoundedRect(QRectF(rect()), 14, 14);
    setMask(QRegion(outline.toFillPolygon().toPolygon()));
    setCursor(Qt::PointingHandCursor);
    setToolTip(QStringLiteral("Click to go on"));

    auto* picture = new QLabel(this);
    picture->setObjectName(QStringLiteral("picVowren"));
    picture->setPixmap(mdiMain::ShellIcon(QStringLiteral("splash")).pixmap(size(), devicePixelRatioF()));
    picture->setGeometry(rect());

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 0, 24, 26);
    layout->addStretch(1);
    auto* name = new QLabel(QStringLiteral("Vowren"), this);
    name->setObjectName(QStringLiteral("lblName"));
    name->setAlignment(Qt::AlignCenter);
    name->setStyleSheet(QStringLiteral("color: white; font-family: 'DejaVu Serif', serif; font-size: 26pt;"));
    layout->addWidget(name);
    auto* label = new QLabel(QStringLiteral("Two hearts, one plan"), this);
    label->setObjectName(QStringLiteral("lblVowren"));
    label->setAlignment(Qt::AlignCenter);
    label->setStyleSheet(QStringLiteral("color: rgba(255,255,255,0.85); font-size: 11pt; letter-spacing: 1px;"));
    layout->addWidget(label);
    auto* version = new QLabel(clsApp::Release(), this);
    version->setAlignment(Qt::AlignCenter);
    version->setStyleSheet(QStringLiteral("color: rgba(255,255,255,0.6); font-size: 8.5pt;"));
    layout->addWidget(version);

    timer = new QTimer(this);
    timer->setSingleShot(true);
    timer->setTimerType(Qt::PreciseTimer);
    timer->setObjectName(QStringLiteral("timer"));
    connect(timer, &QTimer::timeout, this, &frmVowren::ShowMain);

    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
}

void frmVowren::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (mActivated || !mRunOnShow)
        return;
    mActivated = true;
    // Let the picture paint before the patches hold up the event loop.
    QTimer::singleShot(0, this, &frmVowren::FirstActivation);
}

void frmVowren::FirstActivation() {
    RecordIO::Attempt([] { modSubMain::RunPatchesAndOpenGlobals(); });
    mPatched = true;
    if (mSkipWait) {
        ShowMain();
        return;
    }
    timer->setInterval(kWaitMilliseconds);
    timer->start();
}

void frmVowren::mousePressEvent(QMouseEvent* event) {
    QWidget::mousePressEvent(event);
    mSkipWait = true;
    if (mPatched)
        ShowMain();
}

void frmVowren::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Return || event->key() == Qt::Key_Space) {
        mSkipWait = true;
        if (mPatched)
            ShowMain();
        return;
    }
    QWidget::keyPressEvent(event);
}

void frmVowren::ShowMain() {
    if (mDone)
        return;
    mDone = true;
    timer->stop();
    auto* main = new mdiMain;
    main->setAttribute(Qt::WA_DeleteOnClose);
    main->show();
    emit MainWindowShown(main);
    close();
    deleteLater();
}
