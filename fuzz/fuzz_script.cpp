// The scripted window on any script of a few kilobytes, each run in a fresh program folder
// that holds one small dictionary: whatever the keys, menus and answers, no sanitizer report.
#include <filesystem>
#include <sstream>
#include <string>
#include <string_view>

#include "app/headless/script.h"
#include "fuzz_folder.h"

namespace {

constexpr std::string_view kDictionnaire =
    "abeille (n.)\r\nD\xE9" "finition de abeille.\r\n\r\n"
    "chat (n.)\r\nPetit f\xE9lin, voir aussi tigre.\r\n\r\n"
    "\xE9" "cole (n.)\r\nO\xF9 l'on apprend.\r\n\r\n"
    "tigre (n.)\r\nGrand f\xE9lin.\r\n\r\n";

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string texte(reinterpret_cast<const char*>(data), size);
  // A file dialog's answer is a path the program would write to, anywhere on the disk: the
  // dialogs get no answer here (the fuzzer runs with a user's rights).
  if (size > 4096 || texte.find("file") != std::string::npos) return 0;
  const std::string& dossier = lex::fuzz::Dossier();
  std::error_code ec;
  for (const auto& e : std::filesystem::directory_iterator(dossier)) std::filesystem::remove_all(e.path(), ec);
  lex::fuzz::Ecrit("lex.eng", kDictionnaire);

  std::istringstream script(texte);
  std::ostream nulle(nullptr);
  lex::headless::RunScript(dossier, script, nulle);
  return 0;
}
