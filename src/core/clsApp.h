#pragma once

#include "core/clsCounters.h"

#include <QDateTime>
#include <QString>
#include <memory>

// The one object through which the program reaches its settings, its own paths and version, and a few
// facts about the couple's data. A setting is read from the store every time it is asked for and written
// at once when it is set; an unset value reads as its default, and so does a hand-edited value that does
// not convert ("abc" where a Boolean is kept).
class clsApp {
public:
    // ---- Settings below the root key (value name = property name) ----
    QString Delimiter() const { return GetText("Delimiter", ","); }
    void SetDelimiter(const QString& v) { SetText("Delimiter", v); }
    bool Ensure5DigitZipCode() const { return GetBool("Ensure5DigitZipCode", true); }
    void SetEnsure5DigitZipCode(bool v) { SetBool("Ensure5DigitZipCode", v); }
    bool EtiquetteIsFormal() const { return GetBool("EtiquetteIsFormal", false); }
    void SetEtiquetteIsFormal(bool v) { SetBool("EtiquetteIsFormal", v); }
    int GoogleMapIndex() const { return GetInt("GoogleMapIndex", 0); }
    bool LockRSVPIDs() const { return GetBool("LockRSVPIDs", false); }
    void SetLockRSVPIDs(bool v) { SetBool("LockRSVPIDs", v); }
    bool LockTableLayout() const { return GetBool("LockTableLayout", false); }
    void SetLockTableLayout(bool v) { SetBool("LockTableLayout", v); }
    int OpenExportAfterCompletion() const { return GetInt("OpenExportAfterCompletion", 1); }
    void SetOpenExportAfterCompletion(int v) { SetInt("OpenExportAfterCompletion", v); }
    bool Patch_1_Applied() const { return GetBool("Patch_1_Applied", false); }
    void SetPatch_1_Applied(bool v) { SetBool("Patch_1_Applied", v); }
    int PlayWPLAfterCompletion() const { return GetInt("PlayWPLAfterCompletion", 1); }
    void SetPlayWPLAfterCompletion(int v) { SetInt("PlayWPLAfterCompletion", v); }
    int RevealTableStatus() const { return GetInt("RevealTableStatus", 0); }
    void SetRevealTableStatus(int v) { SetInt("RevealTableStatus", v); }
    bool ShowDownloadCommand() const { return GetBool("ShowDownloadCommand", true); }
    void SetShowDownloadCommand(bool v) { SetBool("ShowDownloadCommand", v); }
    // How many rolling backups of the database are kept (the oldest go first).
    int BackupsKept() const { return GetInt("BackupsKept", 10); }
    void SetBackupsKept(int v) { SetInt("BackupsKept", v); }
    bool ShowCountdown() const { return GetBool("ShowCountdown", true); }
    void SetShowCountdown(bool v) { SetBool("ShowCountdown", v); }
    bool ShowDialogWhenAddressUnclear() const { return GetBool("ShowDialogWhenAddressUnclear", true); }
    void SetShowDialogWhenAddressUnclear(bool v) { SetBool("ShowDialogWhenAddressUnclear", v); }
    bool ShowDialogWhenNameUnclear() const { return GetBool("ShowDialogWhenNameUnclear", true); }
    void SetShowDialogWhenNameUnclear(bool v) { SetBool("ShowDialogWhenNameUnclear", v); }
    bool ShowDuplicateWarning() const { return GetBool("ShowDuplicateWarning", true); }
    void SetShowDuplicateWarning(bool v) { SetBool("ShowDuplicateWarning", v); }
    // Every page number goes through as it stands: 10, 11 and 12 are pages too.
    int ShowForm() const { return GetInt("ShowForm", 0); }
    void SetShowForm(int v) { SetInt("ShowForm", v); }
    int ShowGrid() const { return GetInt("ShowGrid", 1); }
    void SetShowGrid(int v) { SetInt("ShowGrid", v); }
    bool ShownFeatureTour() const { return GetBool("ShownFeatureTour", false); }
    void SetShownFeatureTour(bool v) { SetBool("ShownFeatureTour", v); }
    bool ShownForums() const { return GetBool("ShownForums", false); }
    void SetShownForums(bool v) { SetBool("ShownForums", v); }
    // Each page keeps its own: the value name ends in the number of the current page (ShowForm).
    bool ShowNotes() const { return GetBool(ShowNotesName(), true); }
    void SetShowNotes(bool v) { SetBool(ShowNotesName(), v); }
    bool ShowOutlookWarning() const { return GetBool("ShowOutlookWarning", true); }
    void SetShowOutlookWarning(bool v) { SetBool("ShowOutlookWarning", v); }
    // Set by hand only: no code writes it.
    bool SkipPatches() const { return GetBool("SkipPatches", false); }
    QString SongPath() const { return GetText("SongPath", ""); }
    void SetSongPath(const QString& v) { SetText("SongPath", v); }
    // Written when the wedding day is saved, for outside readers; nothing reads it back.
    void SetWeddingDate(const QString& v) { SetText("WeddingDate", v); }

    // ---- The maker's web addresses, kept as settings so that they can be pointed elsewhere ----
    QString UpdatesURL() const { return GetText("UpdatesURL", "https://vowren.app/updates"); }
    QString FeatureTourURL() const { return GetText("FeatureTourURL", "https://vowren.app/tour"); }
    QString HomePageURL() const { return GetText("HomePageURL", "https://vowren.app"); }
    QString BlogURL() const { return GetText("BlogURL", "https://vowren.app/blog"); }
    QString ForumsURL() const { return GetText("ForumsURL", "https://vowren.app/forums"); }
    // Where "Download Custom Reports" fetches the catalogue of custom reports; empty: nowhere.
    QString CustomReportsURL() const {
        return GetText("CustomReportsURL", "https://vowren.app/vowren/sql.xml");
    }
    void SetCustomReportsURL(const QString& v) { SetText("CustomReportsURL", v); }

    // ---- Keys ----
    static QString RootKey() { return QStringLiteral("Software/QuillSoftware/Vowren"); }
    // The root key + "/" + Release: per-form settings start afresh with each major or minor version.
    QString ReleaseKey() const { return RootKey() + QLatin1Char('/') + Release(); }
    // Writes "Release" and "AppPath" below the root key, for an installer or another program.
    void WriteStartValues() const;

    // ---- Version ----
    static QString MajorMinor();
    static QString MajorMinorRevision();
    static QString Release() { return QStringLiteral("Release ") + MajorMinor(); }

    // ---- Paths (the data root plays the part of the program's folder) ----
    // The data file, or the first line of Database/Vowren.connect when the data file is not there.
    QString DatabasePath() const;
    QString ReportPath() const;
    QString PlaylistPath() const;
    QString TemplatePath() const;
    QString SupportPath() const;
    // Create the folder; every failure is ignored (writing a report says what went wrong later).
    void MakeReportPath() const;
    void MakePlaylistPath() const;

    // ---- Facts about the wedding ----
    // True when both first and last names of the couple and the wedding date are filled.
    static bool CoreInformationGathered(const QString& brideFirst, const QString& brideLast,
                                        const QString& groomFirst, const QString& groomLast,
                                        const QString& weddingDate);
    // True once the wedding moment has passed; at the second itself it is still false.
    static bool Married(const QString& weddingDateTime, const QDateTime& now);
    // The time between now and the wedding, before or after it, as the countdown words it: "3 days
    // 4 hours 5 minutes " near the day, whole days far from it. Empty for an unreadable date. The whole
    // days go to *days when asked.
    static QString TimeToWeddingText(const QString& weddingDateTime, const QDateTime& now, long long* days = nullptr);
    // True on a screen of at most 800 by 600 pixels.
    static bool Screen_800_x_600(int widthPixels, int heightPixels) {
        return widthPixels <= 800 && heightPixels <= 600;
    }
    // Set by the main window's countdown, read by the statistics report; empty until then.
    QString TimeToWedding;

    // ---- Counts for the Home page and the statistics ----
    // Each passes its arguments unchanged to the counters installed by the start-up layer; the settings
    // dictionaries, which live here, are counted here.
    long TotalBudget(int filter, const QString& categoryId = QString()) const;
    long TotalBudgetCategories() const;
    long TotalContacts(int filter, const QString& customWhere = QString(), bool excludeBrideGroom = false) const;
    long TotalEvents() const;
    long TotalGifts(int filter, const QString& customWhere = QString()) const;
    long TotalInvitations(int filter, const QString& customWhere = QString()) const;
    long TotalNotes() const;
    long TotalSettings(int dictionaryKind) const;
    long TotalTables(int kind) const;
    long TotalTasks(int filter) const;
    long TotalTentcards() const;
    long TotalTimelineEntries(const QString& eventId = QString()) const;
    long TotalTimelineEvents() const;
    long TotalVendors() const;
    clsMoney TotalBudgetSumEstimates() const;
    long TotalFlights() const;
    long TotalHotels() const;
    long TotalSongs() const;

    // ---- Conversions, shared with every other setting of the program ----
    static bool ToBool(const QString& text, bool defaultValue);
    static int ToInt16(const QString& text, int defaultValue);
    static QString FromBool(bool value) { return value ? QStringLiteral("1") : QStringLiteral("0"); }

    // The answer to the counts; the program and every test install it once, before the first count.
    static void SetCounters(std::unique_ptr<clsCounters> counters);

private:
    static const clsCounters& Counters();
    QString ShowNotesName() const { return QStringLiteral("ShowNotes") + QString::number(ShowForm()); }
    QString GetText(const QString& name, const char* defaultValue) const;
    void SetText(const QString& name, const QString& value) const;
    bool GetBool(const QString& name, bool defaultValue) const;
    void SetBool(const QString& name, bool value) const;
    int GetInt(const QString& name, int defaultValue) const;
    void SetInt(const QString& name, int value) const;
};

clsApp& gApp();
