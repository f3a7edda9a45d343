// The table of the pages and their controls.
#include "host/sheet/sheetPages.h"

#include <array>

#include "host/programVersion.h"

namespace {

using enum ControlKind;
namespace id = controlIds;

constexpr SheetControl moonControls[] = {{id::none, groupBox, "Moon size"},
                                         {id::moonSmall, radioButton, "Small"},
                                         {id::moonMedium, radioButton, "Medium"},
                                         {id::moonLarge, radioButton, "Large"}};

constexpr SheetControl messagesControls[] = {
    {id::messagePosition, groupBox, "Message 1 of 1"},
    {id::none, label, "Message:\n(Press CTRL + ENTER for a new line)"},
    {id::message, multiLineEdit, ""},
    {id::none, label, "Bottom line:"},
    {id::bottomLine, lineEdit, ""},
    {id::newMessage, button, "New"},
    {id::previousMessage, button, "< Previous"},
    {id::nextMessage, button, "Next >"},
    {id::deleteMessage, button, "Delete"},
    {id::messageNote, label, ""}};

constexpr SheetControl backgroundControls[] = {{id::none, groupBox, "Sky background"},
                                               {id::black, radioButton, "Black color"},
                                               {id::darkBlue, radioButton, "Dark blue color"},
                                               {id::gradientBlue, radioButton, "Gradient blue color"},
                                               {id::starrySky, radioButton, "Starry sky background"}};

// Deliberate: one expects "Cuckoo"; the word is misspelled here as in the key of the setting, by which users
// and their notes know it. Do not mend it.
constexpr char cookooText[] = "Cookoo every hour (Rooster in the mornings)";

constexpr SheetControl soundsControls[] = {
    {id::none, groupBox, "Play the following sound"},
    {id::lullaby, radioButton, "Lullaby"},
    {id::oceanWaves, radioButton, "Ocean waves"},
    {id::sleepingWithTheOneILove, radioButton, "Sleeping with the one I love"},
    {id::silence, radioButton, "The sound of silence"},
    {id::sleepReminder, radioButton, "Sleep reminder"},
    {id::birds, radioButton, "Birds"},
    {id::feelingBlue, radioButton, "Feeling blue"},
    {id::cookooEveryHour, checkBox, cookooText}};

constexpr SheetControl quotesControls[] = {{id::none, groupBox, "Show quotes of the following categories"},
                                           {id::love, checkBox, "Love"},
                                           {id::wisdom, checkBox, "Wisdom"},
                                           {id::advice, checkBox, "Advice"},
                                           {id::peace, checkBox, "Peace"},
                                           {id::funny, checkBox, "Funny"},
                                           {id::womenVSMen, checkBox, "Women VS Men"}};

constexpr SheetControl powerControls[] = {
    {id::none, label,
     "When doing a lengthy operation, like a big file download, the computer might go to idle state and "
     "interrupt your operation.\nLunaria can keep the computer awake."},
    {id::none, groupBox, "Prevent the computer from entering idle mode"},
    {id::runNormally, radioButton, "Run normally (no power mode changes)"},
    {id::awake2Hours, radioButton, "Keep awake for the next 2 hours"},
    {id::awake8Hours, radioButton, "Keep awake for the next 8 hours"},
    {id::awakePermanently, radioButton, "Keep awake permanently"},
    {id::none, label, "If on laptop, do not close the lid to avoid overheating."}};

constexpr SheetControl startupControls[] = {{id::none, groupBox, "Startup effect"},
                                            {id::noStartupEffect, radioButton, "None"},
                                            {id::oldTelevision, radioButton, "Switching off old TV"}};

constexpr SheetControl aboutControls[] = {{id::about, link, ""}};

// Deliberate: one expects "Startup" to record its own position, 6; it records that of "About". A sheet that
// was left on "Startup" therefore opens on "About" the next time, and always has. Do not correct it.
constexpr int indexThatStartupRecords = aboutPage;

constexpr std::array<SheetPage, pageCount> pages = {
    {{106, "Moon", moonPage, 231, 87, moonControls},
     {2008, "Messages", messagesPage, 237, 150, messagesControls},
     {2007, "Background", backgroundPage, 219, 117, backgroundControls},
     {2010, "Sounds", soundsPage, 219, 117, soundsControls},
     {2009, "Quotes", quotesPage, 219, 117, quotesControls},
     {2006, "Power", powerPage, 225, 154, powerControls},
     {2005, "Startup", indexThatStartupRecords, 213, 93, startupControls},
     {2004, "About", aboutPage, 231, 122, aboutControls}}};

// Deliberate: the program's name is misspelled here and nowhere else, and a blank stands at the end. Scripts
// and translations of others look for the window by this caption. Do not mend it.
constexpr char captionBeforeVersion[] = "Lunara ";
constexpr char captionAfterVersion[] = " ";

}  // namespace

std::span<const SheetPage> sheetPages() {
  return pages;
}

std::string sheetCaption() {
  return std::string(captionBeforeVersion) + programVersion + captionAfterVersion;
}
