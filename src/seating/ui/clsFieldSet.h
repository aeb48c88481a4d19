#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

// The text boxes of an editor and the record members they show: filled from a record, written back,
// compared for changes and blanked for the next record, all in one place.
template <class Record> class clsFieldSet {
public:
    void Add(QLineEdit* box, QString Record::*member) {
        mFields.push_back({[box] { return box->text().trimmed(); },
                           [box](const QString& text) { box->setText(text); }, member});
    }
    void Add(QPlainTextEdit* box, QString Record::*member) {
        mFields.push_back({[box] { return box->toPlainText().trimmed(); },
                           [box](const QString& text) { box->setPlainText(text); }, member});
    }

    void Load(const Record& record) const {
        for (const Field& field : mFields)
            field.Set(record.*field.Member);
    }
    void Store(Record& record) const {
        for (const Field& field : mFields)
            record.*field.Member = field.Get();
    }
    QStringList Snapshot() const {
        QStringList texts;
        for (const Field& field : mFields)
            texts << field.Get();
        return texts;
    }
    void Clear() const {
        for (const Field& field : mFields)
            field.Set(QString());
    }

private:
    struct Field {
        std::function<QString()> Get;
        std::function<void(const QString&)> Set;
        QString Record::*Member;
    };
    std::vector<Field> mFields;
};
