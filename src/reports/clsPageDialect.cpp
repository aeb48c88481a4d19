#include "reports/clsPageDialect.h"

namespace {

clsPageDialect::Maker& RegisteredMaker() {
    static clsPageDialect::Maker maker;
    return maker;
}

} // namespace

void clsPageDialect::Register(Maker maker) {
    RegisteredMaker() = std::move(maker);
}

std::unique_ptr<clsPageDialect> clsPageDialect::Make() {
    const Maker& maker = RegisteredMaker();
    return maker ? maker() : nullptr;
}
