#include "shell/modFormPlace.h"

#include "core/modGeneral.h"
#include "platform/clsRegistry.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace {

QRect AvailableScreen(const QWidget* widget) {
    const QScreen* screen = widget->screen() ? widget->screen() : QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect(0, 0, 1024, 768);
}

bool HasSavedPlace(const QString& formName) {
    return !gRegistry().GetSetting(FormRegistryKey(formName), QStringLiteral("Width"), QString()).isEmpty();
}

// Restores the dialog's place the first time it shows, and saves it each time it is hidden.
class PlaceKeeper : public QObject {
public:
    explicit PlaceKeeper(QWidget* dialog) : QObject(dialog), mDialog(dialog) {
        dialog->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched != mDialog)
            return false;
        if (event->type() == QEvent::Show && !mRestored) {
            mRestored = true;
            if (HasSavedPlace(mDialog->objectName()))
                modFormPlace::Restore(mDialog, mDialog->objectName());
        } else if (event->type() == QEvent::Hide && mRestored) {
            modFormPlace::Save(mDialog, mDialog->objectName());
        }
        return false;
    }

private:
    QWidget* mDialog;
    bool mRestored = false;
};

} // namespace

namespace modFormPlace {

double TwipsPerPixel(const QWidget* widget) {
    const QScreen* screen = widget->screen() ? widget->screen() : QGuiApplication::primaryScreen();
    const double dpi = screen ? screen->logicalDotsPerInchX() : 96.0;
    return dpi > 0 ? 1440.0 / dpi : 15.0;
}

void Restore(QWidget* window, const QString& formName) {
    const double tpp = TwipsPerPixel(window);
    const QRect screen = AvailableScreen(window);
    const FormPlacement place =
        FormPositionLoad(formName, int(screen.width() * tpp), int(screen.height() * tpp));
    QRect wanted(int(place.Left / tpp), int(place.Top / tpp), int(place.Width / tpp),
                 int(place.Height / tpp));
    // A place saved on a screen that is gone comes back onto this one.
    if (!screen.isEmpty() && !screen.intersects(wanted))
        wanted.moveTopLeft(screen.topLeft());
    window->setGeometry(wanted);
    if (place.WindowState == 2)
        window->setWindowState(Qt::WindowMaximized);
}

void Save(const QWidget* window, const QString& formName) {
    const double tpp = TwipsPerPixel(window);
    const QRect normal =
        window->isMaximized() || window->isMinimized() ? window->normalGeometry() : window->geometry();
    FormPositionSave(formName, FormPlacement{int(normal.x() * tpp), int(normal.y() * tpp),
                                             int(normal.width() * tpp), int(normal.height() * tpp),
                                             window->isMaximized() ? 2 : (window->isMinimized() ? 1 : 0)});
}

void Remember(QWidget* dialog) {
    new PlaceKeeper(dialog);
}

} // namespace modFormPlace
