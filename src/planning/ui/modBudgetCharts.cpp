#include "planning/ui/modBudgetCharts.h"

#include <QBarCategoryAxis>
#include <QBarSet>
#include <QBuffer>
#include <QChart>
#include <QGraphicsScene>
#include <QHorizontalBarSeries>
#include <QImage>
#include <QPainter>
#include <QPieSeries>
#include <QValueAxis>

#include <algorithm>
#include <cmath>

namespace modBudgetCharts {

namespace {

const QColor kEstimate(150, 170, 200);
const QColor kActual(200, 120, 140);
const QColor kSelectedEstimate(40, 80, 150);
const QColor kSelectedActual(170, 30, 70);

void Clear(QChart* chart) {
    chart->removeAllSeries();
    for (QAbstractAxis* axis : chart->axes()) {
        chart->removeAxis(axis);
        delete axis;
    }
}

QBarSet* NewSet(const QString& label, const QColor& color, const QColor& selected) {
    auto* set = new QBarSet(label);
    set->setColor(color);
    set->setBorderColor(color);
    set->setSelectedColor(selected);
    return set;
}

// The amounts axis ends on a round number above the largest bar.
double AxisEnd(double largest) {
    if (largest <= 0)
        return 100;
    const double step = std::pow(10.0, std::floor(std::log10(largest)));
    return std::ceil(largest / step) * step;
}

} // namespace

QChart* NewChart() {
    auto* chart = new QChart;
    chart->setAnimationOptions(QChart::NoAnimation);
    chart->setBackgroundRoundness(0);
    chart->setMargins(QMargins(4, 4, 4, 4));
    return chart;
}

void FillBars(QChart* chart, const QList<clsBudgetCategorySums>& categories, const QString& selectedId) {
    Clear(chart);
    auto* estimates = NewSet(QStringLiteral("Estimate"), kEstimate, kSelectedEstimate);
    auto* actuals = NewSet(QStringLiteral("Actual"), kActual, kSelectedActual);
    QStringList names;
    double largest = 0;
    // The axis runs from the bottom up: the last category goes in first, so that the bars read top down
    // in the order of the list beside them.
    for (qsizetype i = categories.size() - 1; i >= 0; --i) {
        const clsBudgetCategorySums& category = categories[i];
        estimates->append(category.Estimate.ToDouble());
        actuals->append(category.Actual().ToDouble());
        largest = std::max({largest, category.Estimate.ToDouble(), category.Actual().ToDouble()});
        names << category.BUDGET_CATEGORY_TX;
        if (category.BUDGET_CATEGORY_ID == selectedId) {
            estimates->selectBar(int(names.size() - 1));
            actuals->selectBar(int(names.size() - 1));
        }
    }
    auto* series = new QHorizontalBarSeries;
    series->append(actuals);
    series->append(estimates);
    series->setBarWidth(0.8);
    chart->addSeries(series);
    auto* categoryAxis = new QBarCategoryAxis;
    categoryAxis->append(names);
    chart->addAxis(categoryAxis, Qt::AlignLeft);
    series->attachAxis(categoryAxis);
    auto* amounts = new QValueAxis;
    amounts->setRange(0, AxisEnd(largest));
    amounts->setLabelFormat(QStringLiteral("%.0f"));
    amounts->setTickCount(3);
    chart->addAxis(amounts, Qt::AlignBottom);
    series->attachAxis(amounts);
    chart->legend()->setAlignment(Qt::AlignBottom);
    chart->legend()->setVisible(true);
    chart->legend()->setReverseMarkers(true);
}

void FillRing(QChart* chart, const QList<clsBudgetCategorySums>& categories, const QString& selectedId) {
    Clear(chart);
    auto* ring = new QPieSeries;
    ring->setHoleSize(0.5);
    ring->setPieSize(0.85);
    chart->setTitle(QStringLiteral("Spent by category"));
    for (const clsBudgetCategorySums& category : categories) {
        if (category.Actual() <= clsMoney())
            continue;
        const QString label = category.BUDGET_CATEGORY_TX + QStringLiteral(" ") + category.Actual().Text();
        QPieSlice* slice = ring->append(label, category.Actual().ToDouble());
        if (category.BUDGET_CATEGORY_ID == selectedId) {
            slice->setExploded(true);
            chart->setTitle(label);
        }
    }
    if (ring->count() == 0) {
        QPieSlice* nothing = ring->append(QStringLiteral("Nothing spent yet"), 1);
        nothing->setColor(QColor(220, 220, 220));
        chart->setTitle(QStringLiteral("Nothing spent yet"));
    }
    chart->addSeries(ring);
    chart->legend()->setVisible(false);
}

QByteArray BarsPng(const QList<clsBudgetCategorySums>& categories, QSize size) {
    QGraphicsScene scene;
    QChart* chart = NewChart();
    scene.addItem(chart);
    QFont font = chart->font();
    font.setPointSizeF(font.pointSizeF() * 2);
    chart->setFont(font);
    FillBars(chart, categories, QString());
    for (QAbstractAxis* axis : chart->axes())
        axis->setLabelsFont(font);
    chart->legend()->setFont(font);
    chart->setGeometry(QRectF(QPointF(0, 0), size));
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        scene.render(&painter, QRectF(QPointF(0, 0), size), QRectF(QPointF(0, 0), size));
    }
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, "PNG") ? png : QByteArray();
}

} // namespace modBudgetCharts
