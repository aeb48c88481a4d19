#pragma once

#include <QString>

// One ready query of the custom reports catalogue: its category (the group it is listed under) and that
// group's icon, its name, what it shows, the day it was added, and the statement itself. The statement's
// column aliases carry the report's layout: "1440 RSVP ID" ends its column 1440 twips from the table's
// left edge and heads it "RSVP ID"; the last column takes the rest of the width and its whole alias.
class clsSQL_XML {
public:
    QString SQL_CATEGORY;
    QString SQL_CATEGORY_ICON;
    QString SQL_NAME;
    QString SQL_DESC;
    QString DATE_ADDED;
    QString SQL;
};
