#include "planning/ChecklistSeed.h"

#include "core/modSchema.h"

QList<QPair<int, QString>> DefaultChecklistTasks() {
    return {
        // A year or more ahead
        {0, "Set the wedding date"},
        {0, "Agree on an overall budget and who contributes"},
        {0, "Draft the first guest list"},
        {0, "Choose the style and size of the wedding"},
        {0, "Research and visit ceremony sites"},
        {0, "Research and visit reception sites"},
        {0, "Book the ceremony site"},
        {0, "Book the reception site"},
        {0, "Consider hiring a wedding planner"},
        {0, "Start a wedding folder for contracts and receipts"},
        // 10 to 12 months
        {1, "Choose the officiant"},
        {1, "Choose the maid of honor, best man and wedding party"},
        {1, "Book the photographer"},
        {1, "Book the videographer"},
        {1, "Book the caterer"},
        {1, "Book the band or DJ"},
        {1, "Shop for the wedding dress"},
        {1, "Send save-the-date cards to out-of-town guests"},
        {1, "Reserve blocks of hotel rooms for guests"},
        {1, "Set up a wedding website"},
        // 6 to 9 months
        {2, "Order the wedding dress"},
        {2, "Book the florist"},
        {2, "Register for gifts"},
        {2, "Choose bridesmaid dresses"},
        {2, "Plan the honeymoon and check passports"},
        {2, "Book ceremony musicians"},
        {2, "Order the invitations"},
        {2, "Book transportation for the wedding day"},
        {2, "Book the rehearsal dinner location"},
        // 4 to 6 months
        {3, "Order the wedding cake"},
        {3, "Choose and order the groom's attire"},
        {3, "Book the honeymoon"},
        {3, "Buy the wedding rings"},
        {3, "Plan the ceremony with the officiant"},
        {3, "Choose readings and readers"},
        {3, "Arrange rentals: chairs, tables, linens, tent"},
        {3, "Book hair and makeup artists"},
        // 2 to 3 months
        {4, "Address and mail the invitations"},
        {4, "Finalize the menu with the caterer"},
        {4, "Schedule dress fittings"},
        {4, "Write the vows"},
        {4, "Choose the music for ceremony and reception"},
        {4, "Buy gifts for the wedding party"},
        {4, "Order favors"},
        {4, "Plan the rehearsal"},
        {4, "Confirm the honeymoon bookings"},
        // 1 to 2 months
        {5, "Apply for the marriage license"},
        {5, "Track replies and follow up with late guests"},
        {5, "Have a hair and makeup trial"},
        {5, "Confirm all vendors in writing"},
        {5, "Buy shoes and accessories"},
        {5, "Write the timeline of the wedding day"},
        {5, "Send the song list to the DJ or band"},
        {5, "Pick up the wedding rings"},
        // 3 weeks
        {6, "Give the final head count to the caterer"},
        {6, "Make the seating plan"},
        {6, "Print place cards and tent cards"},
        {6, "Final dress fitting"},
        {6, "Confirm hotel reservations for guests"},
        {6, "Prepare final payments and tips for vendors"},
        // 1 to 2 weeks
        {7, "Give the shot list to the photographer"},
        {7, "Confirm the timeline with the wedding party"},
        {7, "Pack for the honeymoon"},
        {7, "Pick up the wedding dress"},
        {7, "Assign someone to collect gifts and cards"},
        {7, "Prepare the welcome bags for out-of-town guests"},
        // The day before
        {8, "Attend the rehearsal and rehearsal dinner"},
        {8, "Hand the rings to the best man"},
        {8, "Give vendors' payments and tips to a trusted helper"},
        {8, "Lay out everything for the morning"},
        // The wedding day
        {9, "Eat a good breakfast"},
        {9, "Give the marriage license to the officiant"},
        {9, "Enjoy the day"},
        // After the wedding
        {10, "Return rented attire and items"},
        {10, "Send the signed marriage license to the registry"},
        {10, "Write thank-you notes"},
        {10, "Have the dress cleaned and preserved"},
        {10, "Change names on documents and accounts"},
        {10, "Order prints and the wedding album"},
        {10, "Review the vendors"},
    };
}

void RegisterChecklistSeed() {
    modSchema::RegisterSeed(QStringLiteral("TASK"), [](clsDB& db) {
        QList<QVariantList> rows;
        const auto tasks = DefaultChecklistTasks();
        for (int i = 0; i < tasks.size(); ++i)
            rows.append({i + 1, tasks[i].second, tasks[i].first, "N", i + 1});
        modSchema::InsertRows(db, QStringLiteral("TASK"),
                              {"TASK_ID", "TASK_NM", "TASK_GROUP_ID", "COMPLETED_FG", "SORT_ORDER_NB"}, rows);
    });
}
