#pragma once

#include "reports/clsRTFCell.h"

#include <QByteArray>
#include <QList>
#include <functional>
#include <memory>

class clsRTFMaster;
class clsRTFMasterTemp;

// A dialect of the writer that lays a report out in pages and paints it (PDF). The report layer only
// hands it the rows; a layer that can paint makes it and registers its maker, so that the report
// classes and the domain stay free of fonts and painting.
class clsPageDialect {
public:
    using Maker = std::function<std::unique_ptr<clsPageDialect>()>;

    virtual ~clsPageDialect() = default;

    // Starts a document with the writer's paper, margins, font, header and footer choices. False when
    // it can't be started; the user has not been told.
    virtual bool Begin(const clsRTFMaster& writer, const clsRTFMasterTemp& settings) = 0;
    // One table row; each cell's text already carries its bold, italic and strike-through.
    virtual void Row(const QList<clsRTFCell>& cells, bool rowHeader, int exactHeightTwips) = 0;
    // A paragraph of its own across the table's width.
    virtual void Paragraph(const RtfMarkup& text) = 0;
    virtual void SetFontHalfPoints(int halfPoints) = 0;
    // The finished document; empty when painting failed.
    virtual QByteArray Finish() = 0;
    // False for a dialect that only lays the pages out for the screen or a printer: the writer then
    // opens no file, and Finish gives back nothing.
    virtual bool WritesFile() const { return true; }

    // The layer that paints says how to make its dialect; an empty maker takes it back.
    static void Register(Maker maker);
    // A new dialect, or none when no layer registered one.
    static std::unique_ptr<clsPageDialect> Make();
};
