#pragma once

#include "programs/mass_mailer/mailing.h"
#include "programs/mass_mailer/usage.h"
#include "programs/program.h"

namespace ornavel::mass_mailer {

inline constexpr TextView window_title = u"Ornavel Send to Many";

/// The window of Send to Many: takes a list, shows each person's message, and sends them. The platform and
/// what takes errors outlive it.
class frmMassMailer {
public:
    /// page: the composed message, with its fields.
    frmMassMailer(const programs::Platform& platform, ErrorSink& errors, Text page);

    forms::Form& form() { return form_; }

private:
    enum class Phase { choosing, running, paused };

    /// One run over the list, and what it needs for as long as it may be gone on with.
    struct Sending;
    /// How the list stands at the start.
    struct Standing {
        std::size_t open = 0, unknown = 0, sent = 0, sent_by_others = 0;
    };

    void wire();
    void Form_Load();
    void Form_Unload();
    void cmdOpenList_Click();
    void cmdStart_Click();
    void cmdPause_Click();
    void cmdStop_Click();
    void cmdTest_Click();

    // The list.
    void take_list();
    void forget_people();
    void read_list();
    void take_column();
    void take_drafts();
    void list_people(const Journal* journal = nullptr);
    void list_rejected();

    // The page.
    void show_person(std::size_t person);
    void turn_to(int step);
    Letter letter_to(const Person& person) const;
    Text preview_path() const { return platform_.scratch_folder + u"\\OrnavelSendToMany.html"; }

    // Sending.
    bool is_ready();
    std::vector<Text> problems();
    int pace();
    Standing standing_of(const Journal& journal) const;
    bool wants_unknown(const Journal& journal, std::size_t count);
    bool agrees(const Journal& journal, const Standing& standing, std::size_t messages);
    void begin();
    void go_on();
    void show_progress();
    void show_rest(Rest rest);
    void tell_end(const Mailing& mailing);
    void take_phase(Phase phase);
    void inform(const Text& text) { platform_.windows.inform(window_title, text); }

    const programs::Platform& platform_;
    ErrorSink& errors_;
    Text page_;
    Text list_, list_path_; ///< the path is empty for a list that was pasted
    Text problem_;          ///< why the list can't be read
    Table table_;
    People people_;
    Draft subject_draft_, page_draft_;
    std::size_t shown_ = 0;
    bool is_tested_ = false;
    Phase phase_ = Phase::choosing;
    std::shared_ptr<Sending> sending_;
    std::vector<Text> unsent_; ///< of the last run, as the list shows them
    forms::Form form_;
};

} // namespace ornavel::mass_mailer
