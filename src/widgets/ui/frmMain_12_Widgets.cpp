#include "widgets/ui/frmMain_12_Widgets.h"

#include "core/RecordIO.h"
#include "planning/clsEVENT.h"
#include "platform/clsRegistry.h"
#include "reports/clsReportCatalogue.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/modPages.h"
#include "widgets/modWording.h"
#include "widgets/ui/usrEventSide.h"
#include "widgets/ui/usrSongsSide.h"
#include "widgets/ui/usrVowsSide.h"
#include "widgets/ui/usrWordingSide.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {
const QString kSideSetting = QStringLiteral("optWidget");
constexpr int kFixedSides = 3;
} // namespace

frmMain_12_Widgets::frmMain_12_Widgets(QWidget* parent) : usrPage(parent) {
    setObjectName(QStringLiteral("frmMain_12_Widgets"));
    const QList<clsEVENT> events = RecordIO::Read([] { return clsEVENT().OpenRecords(); });
    for (const clsEVENT& event : events)
        if (event.EVENT_ID != QLatin1String("1"))
            mEvents.append({event.EVENT_ID, event.EVENT_TX});

    mStack = new QStackedWidget(this);
    mWording = new usrWordingSide(mStack);
    mVows = new usrVowsSide(mStack);
    mSongs = new usrSongsSide(mStack);
    mEvent = new usrEventSide(mStack);
    for (usrWidgetSide* side : {static_cast<usrWidgetSide*>(mWording), static_cast<usrWidgetSide*>(mVows),
                                static_cast<usrWidgetSide*>(mSongs), static_cast<usrWidgetSide*>(mEvent)})
        mStack->addWidget(side);
    connect(mSongs, &usrSongsSide::PlaylistCreated, this, &usrPage::PlaylistCreated);
    connect(mSongs, &usrSongsSide::PrintReports, this,
            [this] { modPages::OpenReports(this, clsReportCatalogue::Widgets, mSongs->ReportFilter()); });

    auto* layout = new QHBoxLayout(this);
    layout->addWidget(BuildOptions());
    layout->addWidget(mStack, 1);

    bool ok = false;
    const int stored =
        gRegistry().GetSetting(modWording::SettingsKey(), kSideSetting, QStringLiteral("0")).toInt(&ok);
    opt_Click(ok && stored >= 0 && stored < SideCount() ? stored : 0);
}

QWidget* frmMain_12_Widgets::BuildOptions() {
    auto* panel = new QWidget(this);
    auto* layout = new QVBoxLayout(panel);
    mOptions = new QButtonGroup(panel);
    QStringList captions = {QStringLiteral("Invitation Wording"), QStringLiteral("Wedding Vows"),
                            QStringLiteral("Songs")};
    for (const auto& event : mEvents)
        captions << EventCaption(event.second);
    for (int i = 0; i < captions.size(); ++i) {
        auto* option = new QRadioButton(captions.at(i), panel);
        option->setObjectName(QStringLiteral("opt_%1").arg(i));
        if (i >= kFixedSides) {
            option->setProperty("Tag", mEvents.at(i - kFixedSides).first);
            option->setToolTip(mEvents.at(i - kFixedSides).second);
        }
        mOptions->addButton(option, i);
        layout->addWidget(option);
    }
    connect(mOptions, &QButtonGroup::idClicked, this, &frmMain_12_Widgets::opt_Click);
    layout->addSpacing(12);
    auto* print = new usrHyperlink(QStringLiteral("Print reports"), panel);
    print->setObjectName(QStringLiteral("linkPrint"));
    connect(print, &usrHyperlink::Click, this, [this] {
        modPages::OpenReports(this, clsReportCatalogue::Widgets, Side(mCurrent)->ReportFilter());
    });
    layout->addWidget(print);
    layout->addStretch();
    return panel;
}

QString frmMain_12_Widgets::EventCaption(const QString& eventName) {
    return eventName.size() > 20 ? eventName.left(20) + QStringLiteral("...") : eventName;
}

int frmMain_12_Widgets::SideCount() const {
    return kFixedSides + static_cast<int>(mEvents.size());
}

usrWidgetSide* frmMain_12_Widgets::Side(int index) const {
    return qobject_cast<usrWidgetSide*>(mStack->widget(qMin(index, kFixedSides)));
}

void frmMain_12_Widgets::opt_Click(int index) {
    if (index < 0 || index >= SideCount())
        return;
    if (mCurrent >= 0 && index != mCurrent)
        Side(mCurrent)->Leaving();
    mCurrent = index;
    mOptions->button(index)->setChecked(true);
    if (index >= kFixedSides) {
        const auto& event = mEvents.at(index - kFixedSides);
        mEvent->ShowEvent(event.first, event.second);
    }
    mStack->setCurrentWidget(Side(index));
}

void frmMain_12_Widgets::Leaving() {
    Side(mCurrent)->Leaving();
    gRegistry().SaveSetting(modWording::SettingsKey(), kSideSetting, QString::number(mCurrent));
}

void frmMain_12_Widgets::showEvent(QShowEvent* event) {
    usrPage::showEvent(event);
    emit Breadcrumb(QStringLiteral("Wedding Widgets"));
}
