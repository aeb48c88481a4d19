#include "reports/clsReportClasses.h"

#include <QMap>

namespace {
QMap<QString, clsReportClasses::Builder>& Builders() {
    static QMap<QString, clsReportClasses::Builder> builders;
    return builders;
}
} // namespace

void clsReportClasses::Register(const QString& className, Builder builder) {
    if (className.isEmpty() || !builder)
        return;
    Builders().insert(className, std::move(builder));
}

void clsReportClasses::Unregister(const QString& className) {
    Builders().remove(className);
}

bool clsReportClasses::Exists(const QString& className) {
    return !className.isEmpty() && Builders().contains(className);
}

QStringList clsReportClasses::Names() {
    return Builders().keys();
}

QString clsReportClasses::Build(const clsReportRoute& route) {
    const auto it = Builders().constFind(route.ClassName);
    if (it == Builders().constEnd())
        return {};
    return it.value()(route);
}
