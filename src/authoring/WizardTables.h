// What the script wizard offers: sections, styles, the texts of its steps. The window shows these tables and
// the generator reads them; no text of the wizard stands anywhere else.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace troth {

inline constexpr wchar_t kWizardTitle[] = L"Wedding Script Wizard";

// Something the user chooses; the tag is its piece of a wizard file's name.
struct WizardOption {
  const wchar_t* caption;
  const wchar_t* tag;
  const wchar_t* toolTip;
};

inline constexpr std::size_t kSections = 9;
inline constexpr std::size_t kStyles = 2;
inline constexpr std::size_t kSteps = 5;
inline constexpr std::size_t kLanguages = 10;  // how many can be offered

// In the order in which they are generated.
inline constexpr std::array<WizardOption, kSections> kWizardSections{{
    {L"&Greetings to Guests", L"Greetings",
     L"Standard greetings section where the Wedding Master welcomes the attendance and thanks them for being "
     L"present at the ceremony"},
    {L"\"Give &Bride Away\" Section", L"Bride", L"Check this if the Wedding Master has to ask "},
    {L"&Wedding History and Tradition", L"History",
     L"Starting discussion about the history of weddings in Hollowmere"},
    {L"Wedding &Vows", L"Vows",
     L"Wedding vows to each other repeated after the Wedding Master. Only skip this part if you want to "
     L"write "
     L"your own vows."},
    {L"&I do's section", L"Idos", L"The Wedding Master asks the couple to confirm their \"I do\"."},
    {L"Ring &Delivery", L"Rings", L"The best man and the maid of honor deliver the rings to the couple."},
    {L"&Ring Vows", L"RingVows", L"The groom and the bride repeat after the Wedding Master their ring vows."},
    {L"&Final Blessing", L"Blessing",
     L"The Wedding Master gives his final blessing to the couple and the guests."},
    {L"&Thanksgiving to the attendance", L"Thanks",
     L"The Wedding Master thanks all guests for attending the wedding."},
}};

inline constexpr std::array<WizardOption, kStyles> kWizardStyles{{
    {L"&Standard Style", L"Standard", L"Standard wedding style"},
    {L"&Formal Style", L"Formal", L"Formal wedding style for official ceremonies"},
}};

// The text of a step is the resource string of this number plus the number of the step.
inline constexpr int kFirstStepText = 101;

// A resource string; empty for a number that is none.
constexpr std::wstring_view ResourceString(int number) {
  // In parentheses, so that a comma that is missing between two of them is noticed.
  constexpr std::wstring_view kTexts[kSteps] = {
      (L"Welcome to the Wedding Script Wizard. I will help you to create your custom wedding script, "
       L"depending on your needs and the kind of ceremony you are performing. Please start by "
       L"selecting the language you wish to use for your custom script."),
      (L"Your script may include several standard sections. Please check every single section you "
       L"wish to have included in your wedding speech. After you are done, if you are not satisfied "
       L"by the result, you can edit the resulting script and modify whatever you wish to change. "
       L"Just hold the mouse above a checkbox to have a more detailed tooltip help."),
      (L"Select a style for your wedding script. Select standard for ordinary ceremonies, formal for "
       L"longer speeches meant for official ceremonies. Expect a longer duration for formal weddings."),
      (L"Select the add-on features you may wish for your speech. \"Use emotes\" will put some "
       L"emotes in random spots of your speech. Emotes can be turned off at run time by switching "
       L"the corresponding option off from the menu. Suggesting replies to the couple will result in "
       L"party messages sent to the couple to tell them the next answer. Especially use this when "
       L"they couldn't see the script in advance."),
      (L"Congratulations, you are done defining your new wedding script. Press the finish button to "
       L"have Trothline automatically writing it for you. Check the \"Edit generated script\" "
       L"checkbox if you wish to edit or review your script now. When you are done, use the script "
       L"browser to load it into Trothline. When running the script, make sure to enable popup "
       L"messages to have full instructions during your speech. Thank you."),
  };
  const int step = number - kFirstStepText;
  if (step < 0 || step >= static_cast<int>(kSteps)) return {};
  return kTexts[step];
}

}  // namespace troth
