#include "shell/frmMain_99_Forums.h"

#include "core/clsApp.h"
#include "platform/clsRegistry.h"
#include "platform/clsShell.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/mdiMain.h"

#include <QAction>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

const char* const kStyle = R"(
#fraForums { background: white; border: 1px solid #eadfe5; border-radius: 12px; }
#lblForumsHeading { color: #3b2f36; font-family: "DejaVu Serif", serif; font-size: 18pt; }
#lblForumsText, #lblLoginHint { color: #5a4d55; }
)";

QString Setting(const char* name) {
    return gRegistry().GetSetting(clsApp::RootKey(), QString::fromLatin1(name), QString());
}

} // namespace

frmMain_99_Forums::frmMain_99_Forums(QWidget* parent) : usrPage(parent) {
    setObjectName(QStringLiteral("frmMain_99_Forums"));
    setStyleSheet(QLatin1String(kStyle));

    auto* card = new QWidget(this);
    card->setObjectName(QStringLiteral("fraForums"));
    card->setAttribute(Qt::WA_StyledBackground);

    auto* picture = new QLabel(card);
    picture->setPixmap(
        mdiMain::ShellIcon(QStringLiteral("forums")).pixmap(QSize(56, 56), devicePixelRatioF()));
    auto* heading = new QLabel(QStringLiteral("Quill Software Forums"), card);
    heading->setObjectName(QStringLiteral("lblForumsHeading"));
    auto* top = new QHBoxLayout;
    top->setSpacing(14);
    top->addWidget(picture);
    top->addWidget(heading, 1);

    auto* text =
        new QLabel(QStringLiteral("Ask a question, share an idea and hear how other couples planned their "
                                  "day. The forums open in your web browser."),
                   card);
    text->setObjectName(QStringLiteral("lblForumsText"));
    text->setWordWrap(true);

    txtName = new QLineEdit(LoginName(), card);
    txtName->setObjectName(QStringLiteral("txtName"));
    txtName->setMaxLength(100);
    txtPassword = new QLineEdit(LoginPassword(), card);
    txtPassword->setObjectName(QStringLiteral("txtPassword"));
    txtPassword->setEchoMode(QLineEdit::Password);
    txtPassword->setMaxLength(100);
    QAction* reveal =
        txtPassword->addAction(mdiMain::ShellIcon(QStringLiteral("eye")), QLineEdit::TrailingPosition);
    reveal->setObjectName(QStringLiteral("actShowPassword"));
    reveal->setCheckable(true);
    reveal->setToolTip(QStringLiteral("Show the password"));
    connect(reveal, &QAction::toggled, txtPassword, [this](bool shown) {
        txtPassword->setEchoMode(shown ? QLineEdit::Normal : QLineEdit::Password);
    });
    connect(txtName, &QLineEdit::editingFinished, this, &frmMain_99_Forums::SaveLogin);
    connect(txtPassword, &QLineEdit::editingFinished, this, &frmMain_99_Forums::SaveLogin);
    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("Forum &name:"), txtName);
    form->addRow(QStringLiteral("&Password:"), txtPassword);
    auto* hint =
        new QLabel(QStringLiteral("Vowren keeps these in its settings on this computer, so you have them "
                                  "at hand when the forums ask you to sign in."),
                   card);
    hint->setObjectName(QStringLiteral("lblLoginHint"));
    hint->setWordWrap(true);

    auto* open = new QPushButton(QStringLiteral("&Open the Forums"), card);
    open->setObjectName(QStringLiteral("cmdOpenForums"));
    open->setDefault(true);
    connect(open, &QPushButton::clicked, this, &frmMain_99_Forums::OpenForums);
    auto* address = new usrHyperlink(gApp().ForumsURL(), card);
    address->setObjectName(QStringLiteral("linkForums"));
    connect(address, &usrHyperlink::Click, this, &frmMain_99_Forums::OpenForums);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(open);
    buttons->addSpacing(12);
    buttons->addWidget(address);
    buttons->addStretch(1);

    auto* inner = new QVBoxLayout(card);
    inner->setContentsMargins(28, 24, 28, 24);
    inner->setSpacing(14);
    inner->addLayout(top);
    inner->addWidget(text);
    inner->addLayout(form);
    inner->addWidget(hint);
    inner->addLayout(buttons);

    // The card's height follows its wrapped lines at its fixed width.
    constexpr int kCardWidth = 600;
    const int height = card->heightForWidth(kCardWidth);
    card->setFixedSize(kCardWidth, height > 0 ? height : card->sizeHint().height());

    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(24, 28, 24, 24);
    outer->addWidget(card, 0, Qt::AlignHCenter | Qt::AlignTop);
    outer->addStretch(1);
}

QString frmMain_99_Forums::LoginName() {
    return Setting("ForumLoginName");
}
QString frmMain_99_Forums::LoginPassword() {
    return Setting("ForumLoginPassword");
}

void frmMain_99_Forums::SaveLogin() {
    gRegistry().SaveSetting(clsApp::RootKey(), QStringLiteral("ForumLoginName"), txtName->text().trimmed());
    gRegistry().SaveSetting(clsApp::RootKey(), QStringLiteral("ForumLoginPassword"), txtPassword->text());
}

void frmMain_99_Forums::OpenForums() {
    SaveLogin();
    gShell().OpenDocument(gApp().ForumsURL());
}

void frmMain_99_Forums::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (mShown)
        return;
    mShown = true;
    emit Breadcrumb(QStringLiteral("Forums"));
}
