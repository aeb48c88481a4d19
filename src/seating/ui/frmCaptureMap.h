#pragma once

#include <QDialog>
#include <QImage>
#include <QList>
#include <QUrl>

class QComboBox;
class QPushButton;
class QWidget;
class usrMapView;

// Gets the map behind the hotel boxes: a map site in the view, a frame of 484 by 496 pixels kept in the
// middle of it, and "Capture", which saves what the frame holds as "Map.bmp" in the reports folder. A
// picture from a file or the clipboard, cropped to the frame's shape and scaled to its size, does the
// same on a machine without a network. The map country is kept with the data (key 9).
// Children: "cboWebsite", "usrAddress", "picTopLine", "picBottomLine", "picLeftLine", "picRightLine",
// "cmdShowSelection", "cmdLoadPicture", "cmdPastePicture", "cmdCapture", "cmdClose".
class frmCaptureMap : public QDialog {
    Q_OBJECT

public:
    // Takes the view into its keeping.
    explicit frmCaptureMap(usrMapView* view, QWidget* parent = nullptr);

    static QSize FrameSize() { return {484, 496}; }
    // The frame in the middle of a view of that size.
    static QRect FrameRect(const QSize& viewSize);
    // The picture made to the frame's size: cropped in the middle to its shape, then scaled.
    static QImage FitToFrame(const QImage& picture);
    // The link to open for a map link: the address after "?q=" is percent-encoded, so that quotes, a "#"
    // or any script stay part of the address.
    static QUrl MapLink(const QString& link);
    static QString MapPath();

    usrMapView* View() const { return mView; }
    QRect Frame() const;
    bool SelectionShown() const { return mShown; }

    // Saves what the frame holds; false (the dialog stays open) when it can't be written.
    bool Capture();
    // Saves the picture, fitted to the frame; false when it is empty or can't be written.
    bool TakePicture(const QImage& picture);
    void ShowSelection(bool show);

signals:
    void MapCaptured();

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void done(int result) override;

private:
    QWidget* BuildTop();
    QWidget* BuildButtons();
    void PlaceFrame();
    void OpenCountry(int index);
    void OpenAddress(int row);
    void LoadPicture();
    bool Save(const QImage& picture);

    usrMapView* mView;
    QComboBox* cboWebsite = nullptr;
    QComboBox* usrAddress = nullptr;
    QPushButton* cmdShowSelection = nullptr;
    QList<QWidget*> mLines; // top, bottom, left, right
    bool mShown = true;
};
