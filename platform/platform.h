#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "platform/Window.h"

// All that the program may ask of the machine. Which implementation stands behind these functions
// is decided when the program is linked: platform/qt for a real screen, platform/headless for tests
// on a virtual clock.
//
// The end is final. After End no handler runs and no wait returns: each call here that serves
// events throws EndOfProgram from then on, so that what stood behind the wait never runs.

namespace platform {

/// Brings the platform up, calls start, serves events until the program ends, and returns the exit
/// code. Where start returns False the program ends at once.
int Run(int argc, char** argv, bool (*start)());

/// Serves the events that are pending and returns. May run any handler.
void DoEvents();

/// Serves events until one has been served or milliseconds have passed, whichever is first; sleeps
/// meanwhile.
void WaitEvents(std::uint32_t milliseconds);

/// Milliseconds on a steady counter: it only goes forward, whoever sets the clock of the day, wraps
/// after 32 bits, and has no fixed start.
std::uint32_t TickCount();

/// A number that differs from call to call, from a fine clock where there is one.
std::uint64_t RandomSeed();

enum class Icon : std::uint8_t { None, Stop, Exclamation, Information };
enum class Buttons : std::uint8_t { Ok, OkCancel };
enum class Answer : std::uint8_t { Ok, Cancel };

/// Shows a modal message box and returns the answer; closing it by key or box answers Cancel where
/// there is one. An empty title means the program's own. Timers go on meanwhile. Text is shown as
/// it stands.
Answer MsgBox(const std::string& text, Icon icon = Icon::None, const std::string& title = {},
              Buttons buttons = Buttons::Ok, Answer standard = Answer::Ok);

/// Brings the control and what it holds onto the screen as they are now, before it returns. Runs no
/// handler.
void RepaintNow(Control& control);

/// Serves events until the window, already visible, is hidden or unloaded; other windows get no
/// input meanwhile.
void RunModal(Window& window);

/// Gives a visible window the input.
void Activate(Window& window);

/// The screen's size in twips at the scale in use.
double ScreenWidth();
double ScreenHeight();

/// All screens together, in twips at the scale in use; they need not begin at 0, 0.
struct Desk {
  double Left, Top, Width, Height;
};
Desk WholeDesk();

/// The folder of the program, or the user's own data folder where that one cannot be written; no
/// separator at the end.
std::string DataFolder();

/// The folder that holds the program's help file; no separator at the end.
std::string HelpFolder();

/// A kind of file that can be saved: its name for the user, and its ending without the point.
struct FileKind {
  const char* Name;
  const char* Ending;
};

/// Asks the user where to save a file and as what kind, with a proposed name; modal. Returns the
/// path, with the kind's ending where none was typed; nothing where the user gave up. A file that
/// stands there is only named if the user has agreed to its end.
std::string AskSavePath(const std::string& title, const std::string& name,
                        std::span<const FileKind> kinds);

/// Writes a file as a whole or not at all; what stood there stays until then. Returns nothing, or
/// why it failed in words for the user.
std::string SaveFile(const std::string& path, const std::string& contents);

/// Saves a control on the screen as it looks, in the way of SaveFile: as a drawing where the path
/// ends in ".svg", else as a picture of twice its size.
std::string SavePicture(const Control& control, const std::string& path);

/// Asks for a printer, modal, and prints a control as it looks, across one page below a title.
/// Returns nothing, also where the user gave up, or why it failed in words for the user.
std::string PrintPicture(const Control& control, const std::string& title);

/// Puts a text on the clipboard.
void CopyText(const std::string& text);

/// Opens an address with the desktop's own opener. Above 32 is success; 0 no memory, 2 no such
/// address, 31 no browser, any other failure its own number up to 32.
int OpenAddress(const std::string& address);

/// Shows the help file in the help window: at the page that its index calls by the context's
/// number, at the first topic where there is none, or with contents and index (context 0). A file
/// that is missing or damaged gets one message and nothing else.
void ShowHelp(const std::string& file, int context);

/// Whether another instance of this user's program runs; if so it has been asked to come to the
/// front.
bool ActivateOtherInstance();

/// Ends the program: every window goes, nothing that waits goes on. Does not return.
[[noreturn]] void End();

}  // namespace platform
