#pragma once

#include "shell/frmEditorBase.h"
#include "shell/modContactEditor.h"

#include <QTimer>
#include <functional>

// Stands in for the contact editor: as soon as it is shown it runs `save` (which writes what the test
// wants and gives the contact's key, or empty for a Cancel) and closes, telling its opener as the real
// editor does. Install() registers it and remembers what it was asked for.
class FakeContactEditor : public frmEditorBase {
public:
    using Save = std::function<QString(const QString& contactId, const QString& roleId)>;

    FakeContactEditor(QWidget* parent, const QString& contactId, const QString& roleId, Save save)
        : frmEditorBase(parent), mContactId(contactId), mRoleId(roleId), mSave(std::move(save)) {
        SetAdding(contactId.isEmpty());
        MarkClean();
        QTimer::singleShot(0, this, [this] {
            if (!cmdSave_Click())
                reject();
        });
    }

    // Registers the fake; each opening is added to *asked as "contactId/roleId".
    static void Install(Save save, QStringList* asked = nullptr) {
        modContactEditor::SetFactory([save, asked](QWidget* parent, const QString& id, const QString& role) {
            if (asked)
                *asked << id + QLatin1Char('/') + role;
            return new FakeContactEditor(parent, id, role, save);
        });
    }

protected:
    QStringList Snapshot() const override { return {mKey}; }
    bool SaveRecord() override {
        mKey = mSave(mContactId, mRoleId);
        return !mKey.isEmpty();
    }
    QString RecordKey() const override { return mKey; }

private:
    QString mContactId, mRoleId, mKey;
    Save mSave;
};
