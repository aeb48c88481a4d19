#pragma once

#include <QDialog>

// What the songs and the music bar do, with a "Close" button ("cmdClose").
class frmAboutSongs : public QDialog {
    Q_OBJECT

public:
    explicit frmAboutSongs(QWidget* parent = nullptr);
};
