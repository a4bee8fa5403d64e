// Shared pieces of the benchmark programs (bench/bench_*.cpp).
//
// Every benchmark program takes the same arguments,
//   --dict FILE   the dictionary file to measure (required)
//   --work DIR    a folder for the index and letter files it writes (required)
//   --reps N      repetitions of the costly whole-file measures (default 5)
// and prints its results as table rows on stdout, one per line:
//   ROW <tab> measure <tab> ours <tab> reference <tab> ratio <tab> target <tab> PASS|FAIL|- <tab> notes
// bench/run.sh gathers the rows of every program into one table. Progress and diagnostics go
// to stderr.
//
// Whole-file figures are ratios against a plain system tool on the same file, timed in the
// same run, interleaved, best of the repetitions on each side (the tool's process start,
// timed on an empty input, is taken off). Interactive
// figures (a page, an article, a jump) have an absolute target; their reference column is
// the bare minimum of the same work done without the program (a raw read, a binary search),
// to show how much of the time is the program's own.
#pragma once
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "data/files.h"
#include "data/index_file.h"
#include "app/headless/headless_window.h"

extern char** environ;

namespace lex::bench {

[[noreturn]] inline void Echec(const std::string& quoi) {
  std::fprintf(stderr, "bench: %s\n", quoi.c_str());
  std::exit(1);
}

using Horloge = std::chrono::steady_clock;

inline double Secondes(Horloge::time_point debut, Horloge::time_point fin) {
  return std::chrono::duration<double>(fin - debut).count();
}

template <class F>
double Chrono(F&& travail) {
  const auto t0 = Horloge::now();
  travail();
  return Secondes(t0, Horloge::now());
}

// Keeps a result alive so that the optimiser cannot drop the work that made it.
template <class T>
inline void Garde(const T& valeur) {
  asm volatile("" : : "r,m"(valeur) : "memory");
}

struct Resume {
  double mediane = 0, p99 = 0, max = 0;
  std::size_t n = 0;
};

inline Resume Resumer(std::vector<double> v) {
  Resume r;
  if (v.empty()) return r;
  std::sort(v.begin(), v.end());
  auto rang = [&](double q) { return v[std::min(v.size() - 1, static_cast<std::size_t>(q * static_cast<double>(v.size())))]; };
  r.mediane = rang(0.5);
  r.p99 = rang(0.99);
  r.max = v.back();
  r.n = v.size();
  return r;
}

inline double Mediane(const std::vector<double>& v) { return Resumer(v).mediane; }
// Whole-file measures keep their best time: other work on the machine only ever adds to a
// time, and the two sides of a ratio are not disturbed alike.
inline double Minimum(const std::vector<double>& v) { return v.empty() ? 0 : *std::min_element(v.begin(), v.end()); }

// Runs a command (no shell), its stdout sent to `sortie`, and returns its wall time. GNU grep
// stops at the first match when its output is /dev/null: give it a file.
inline double TempsCommande(const std::vector<std::string>& args, const std::string& sortie = "/dev/null") {
  std::vector<char*> argv;
  for (const std::string& a : args) argv.push_back(const_cast<char*>(a.c_str()));
  argv.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, sortie.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
  pid_t pid = 0;
  const auto t0 = Horloge::now();
  const int rc = posix_spawnp(&pid, argv[0], &actions, nullptr, argv.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (rc != 0) Echec("cannot start " + args[0] + ": " + std::strerror(rc));
  int statut = 0;
  if (waitpid(pid, &statut, 0) < 0) Echec("waitpid failed");
  const double t = Secondes(t0, Horloge::now());
  if (!WIFEXITED(statut) || WEXITSTATUS(statut) != 0) Echec(args[0] + " failed");
  return t;
}

// The start of a tool, timed on an input it does nothing with, to be taken off its times.
inline double Demarrage(const std::vector<std::string>& commande, const std::string& sortie = "/dev/null") {
  std::vector<double> t;
  for (int i = 0; i < 5; ++i) t.push_back(TempsCommande(commande, sortie));
  return *std::min_element(t.begin(), t.end());
}

// A value of the generator's DICT.info file, or "".
inline std::string Info(const std::string& dict, const std::string& cle) {
  std::ifstream in(dict + ".info");
  std::string ligne;
  while (std::getline(in, ligne))
    if (ligne.rfind(cle + "=", 0) == 0) return ligne.substr(cle.size() + 1);
  return {};
}

// Runs a command and returns what it wrote on stdout.
inline std::string SortieCommande(const std::vector<std::string>& args) {
  std::string ligne;
  for (const std::string& a : args) ligne += "'" + a + "' ";
  std::FILE* p = popen(ligne.c_str(), "r");
  if (!p) Echec("cannot start " + args[0]);
  std::string out;
  char buf[4096];
  std::size_t n;
  while ((n = std::fread(buf, 1, sizeof buf, p)) > 0) out.append(buf, n);
  if (pclose(p) != 0) Echec(args[0] + " failed");
  return out;
}

inline std::string Format(const char* fmt, double v) {
  char buf[64];
  std::snprintf(buf, sizeof buf, fmt, v);
  return buf;
}
inline std::string Ms(double s) {
  const double ms = s * 1e3;
  return Format(ms < 1 ? "%.3f ms" : ms < 10 ? "%.2f ms" : "%.1f ms", ms);
}
inline std::string Us(double s) { return Format("%.1f us", s * 1e6); }
inline std::string Mo(double octets) { return Format("%.1f MB", octets / 1e6); }
inline std::string Fois(double r) { return Format("%.2fx", r); }

inline void Ligne(const std::string& mesure, const std::string& nous, const std::string& reference, double ratio,
                  const std::string& cible, std::optional<bool> reussi, const std::string& notes) {
  std::printf("ROW\t%s\t%s\t%s\t%s\t%s\t%s\t%s\n", mesure.c_str(), nous.c_str(), reference.c_str(),
              Fois(ratio).c_str(), cible.c_str(), reussi ? (*reussi ? "PASS" : "FAIL") : "-", notes.c_str());
  std::fflush(stdout);
}

struct Options {
  std::string dict;
  std::string work;
  int reps = 5;
};

inline Options LireOptions(int argc, char** argv) {
  Options o;
  for (int i = 1; i < argc; ++i) {
    const std::string a = argv[i];
    auto valeur = [&]() -> std::string {
      if (i + 1 >= argc) Echec("missing value after " + a);
      return argv[++i];
    };
    if (a == "--dict") o.dict = valeur();
    else if (a == "--work") o.work = valeur();
    else if (a == "--reps") o.reps = std::max(1, std::atoi(valeur().c_str()));
    else Echec("unknown argument " + a + " (usage: --dict FILE --work DIR [--reps N])");
  }
  if (o.dict.empty() || o.work.empty()) Echec("usage: --dict FILE --work DIR [--reps N]");
  return o;
}

// The index and letter files of the dictionary under test, in the work folder.
inline FichiersIndex Fichiers(const Options& o) {
  const std::string nom = NomFichSeul(o.dict);
  return {o.dict, o.work + "/index." + nom, o.work + "/lettre." + nom};
}

// A field of /proc/self/status (VmRSS, VmHWM...), in bytes, or -1.
inline std::int64_t StatutOctets(const char* champ) {
  std::ifstream in("/proc/self/status");
  std::string ligne;
  const std::size_t n = std::strlen(champ);
  while (std::getline(in, ligne))
    if (ligne.compare(0, n, champ) == 0 && ligne.size() > n && ligne[n] == ':')
      return std::atoll(ligne.c_str() + n + 1) * 1024;
  return -1;
}

}  // namespace lex::bench
