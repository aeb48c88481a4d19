#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

// Cuts a person's name, typed on one line, into title, first, middle and last name and suffix.
// A name is one person: "Mr. and Mrs. John Smith" is not split into two, the labelling of an
// invitation joins couples. A comma never reverses the name: "Smith, John" has the first name
// "Smith,". The class touches no database; its title list is fixed (the title dictionary only fills
// the title box of the name dialog).
class clsParseName {
public:
    // True in a new object; ParseFullName sets it from its argument. A receiver of the parts takes
    // the title only when it is true.
    bool ParseTitle = true;
    QString TITLE_TX;
    QString FIRST_NM;
    QString MIDDLE_NM;
    QString LAST_NM;
    QString SUFFIX_TX;

    // Fills the parts from the name. Clears nothing: call it on a new object. A name that is empty
    // or only blanks changes nothing at all.
    void ParseFullName(const QString& name, bool parseTitle);

    // True when nothing but a first name, or nothing but a suffix, or nothing at all is known; the
    // title does not count.
    bool NameUnclear() const;

    // The parts as {title, first, middle, last, suffix, unclear}.
    QJsonObject ToJson() const;
    // A new object's parse of the name, as ToJson gives it.
    static QJsonObject ParseToJson(const QString& name, bool parseTitle = true);

    // Words of at most this many characters are kept; the rest of a longer word is dropped.
    static constexpr qsizetype kMaxWordLength = 50;

private:
    QStringList mWords;
    qsizetype mWordCount = 0;
    qsizetype mConsumed = 0;
    QString mParticle;

    void SplitWords(const QString& name);
    void TakeSuffix();
    void TakeTitle();
    void TakeFirstName();
    void TakeMiddleName();
    void TakeLastName();
    void AppendRest();
    void Consume(qsizetype index);
};
