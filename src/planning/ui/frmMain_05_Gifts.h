#pragma once

#include "planning/clsGIFT.h"
#include "shell/usrListPage.h"

class QMenu;

// The gifts, grouped by the event they came at, with the givers (a contact or a whole invitation), the
// gift, when it came and whether the thank-you note went out. Several rows can be deleted or marked at
// once; the filters count the notes sent and still to write.
class frmMain_05_Gifts : public usrListPage {
    Q_OBJECT

public:
    explicit frmMain_05_Gifts(QWidget* parent = nullptr);

    enum ActionIndex : int {
        AddGift = 0,
        EditGift,
        DeleteGift,
        MarkThankYouSent,
        PrintReports,
        OpenReportsFolder
    };
    enum Column : int {
        GIFT_ICON = 0,
        FROM,
        ADDRESS,
        GIFT,
        EVENT,
        RECEIVED_DT,
        THANK_YOU_SENT_FG,
        ColumnCount
    };

    // "Delete 'Smith, Ann'?" for one gift, "Delete 3 gifts?" for several.
    static QString DeleteQuestion(const QList<clsGIFT>& gifts);

public slots:
    void mfrmGift_Refresh(const QString& giftId);

protected:
    long CountOf(int filterId) const override;
    int FillRows(clsGridFill& fill, int filterId) override;
    void Activate(qint64 key) override;
    void UpdateActions() override;
    void showEvent(QShowEvent* event) override;

private:
    void BuildActions();
    void BuildMenu();
    void OpenEditor(const QString& giftId);
    void DeleteSelected();
    void MarkSelected(bool sent);
    QList<clsGIFT> SelectedGifts() const;
    QStringList SelectedIds() const;
    void RewriteRows(const QStringList& ids);

    QMenu* mnuTHANK_YOU_SENT_FG = nullptr;
};
