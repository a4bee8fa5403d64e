#include "exchange/dictzip.h"

#include <zlib.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <limits>
#include <stdexcept>
#include <thread>

#include "data/safe_write.h"
#include "exchange/article.h"

namespace lex::exchange {

namespace {

constexpr unsigned char kFtext = 1, kFhcrc = 2, kFextra = 4, kFname = 8, kFcomment = 16;

std::uint32_t Lit16(const std::string& s, std::size_t i) {
  return static_cast<unsigned char>(s[i]) | (static_cast<unsigned char>(s[i + 1]) << 8);
}
std::uint32_t Lit32(const std::string& s, std::size_t i) {
  return Lit16(s, i) | (Lit16(s, i + 2) << 16);
}
void Met16(std::string& s, std::uint32_t v) {
  s += static_cast<char>(v & 0xFF);
  s += static_cast<char>((v >> 8) & 0xFF);
}
void Met32(std::string& s, std::uint32_t v) {
  Met16(s, v & 0xFFFF);
  Met16(s, v >> 16);
}

// zlib counts in uInt: a buffer is given in slices that it can take.
constexpr std::size_t kTranche = std::size_t{1} << 30;

struct Inflateur {
  z_stream z{};
  explicit Inflateur(int bits) {
    if (inflateInit2(&z, bits) != Z_OK) throw std::bad_alloc();
  }
  ~Inflateur() { inflateEnd(&z); }
  Inflateur(const Inflateur&) = delete;
  Inflateur& operator=(const Inflateur&) = delete;
};

}  // namespace

bool EstGzip(const std::filesystem::path& chemin) {
  std::ifstream f(chemin, std::ios::binary);
  char m[2] = {};
  return f.read(m, 2) && static_cast<unsigned char>(m[0]) == 0x1F && static_cast<unsigned char>(m[1]) == 0x8B;
}

void LecteurDictzip::Echec(const std::string& probleme) const { throw ErreurImport(nom_, "", probleme); }

LecteurDictzip::LecteurDictzip(const std::filesystem::path& chemin) : chemin_(chemin), nom_(chemin.string()) {
  std::ifstream f(chemin, std::ios::binary);
  if (!f) Echec("fichier introuvable ou illisible");
  std::error_code ec;
  const auto n = std::filesystem::file_size(chemin, ec);
  if (ec) Echec("fichier illisible");
  octets_.resize(static_cast<std::size_t>(n));
  if (n != 0 && !f.read(octets_.data(), static_cast<std::streamsize>(n))) Echec("lecture impossible");
  if (octets_.empty()) Echec("fichier vide");
  const std::string& s = octets_;
  if (s.size() < 18 || static_cast<unsigned char>(s[0]) != 0x1F || static_cast<unsigned char>(s[1]) != 0x8B)
    Echec("ce n'est pas un fichier compressé gzip ou dictzip");
  if (s[2] != 8) Echec("méthode de compression inconnue");
  const auto drapeaux = static_cast<unsigned char>(s[3]);
  std::size_t p = 10;
  if (drapeaux & kFextra) {
    const std::size_t xlen = Lit16(s, p);
    p += 2;
    const std::size_t fin = p + xlen;
    if (fin > s.size()) Echec("en-tête tronqué");
    while (p + 4 <= fin) {
      const char si1 = s[p], si2 = s[p + 1];
      const std::size_t len = Lit16(s, p + 2);
      p += 4;
      if (p + len > fin) Echec("en-tête endommagé (champ supplémentaire)");
      if (si1 == 'R' && si2 == 'A') {
        if (len < 6) Echec("table des morceaux endommagée");
        const std::size_t version = Lit16(s, p), chlen = Lit16(s, p + 2), nombre = Lit16(s, p + 4);
        if (version != 1) Echec("version de table des morceaux inconnue");
        if (chlen == 0 || 6 + 2 * nombre > len) Echec("table des morceaux endommagée");
        longueurMorceau_ = chlen;
        morceaux_.reserve(nombre);
        for (std::size_t i = 0; i < nombre; ++i) morceaux_.push_back(Lit16(s, p + 6 + 2 * i));
      }
      p += len;
    }
    p = fin;
  }
  auto sauteChaine = [&] {
    const auto z = s.find('\0', p);
    if (z == std::string::npos) Echec("en-tête tronqué");
    p = z + 1;
  };
  if (drapeaux & kFname) sauteChaine();
  if (drapeaux & kFcomment) sauteChaine();
  if (drapeaux & kFhcrc) p += 2;
  (void)kFtext;
  if (p + 8 > s.size()) Echec("fichier tronqué");
  debutDonnees_ = p;
  if (AccesDirect()) {
    std::uint64_t q = p;
    positions_.reserve(morceaux_.size());
    for (const auto m : morceaux_) {
      positions_.push_back(q);
      q += m;
    }
    // The last chunk is followed by the final block (a few bytes) and the 8-byte trailer.
    if (q + 8 > s.size()) Echec("fichier tronqué (les morceaux annoncés dépassent sa fin)");
    taille_ = static_cast<std::uint64_t>(longueurMorceau_) * morceaux_.size();
    if (!morceaux_.empty()) {
      // The last chunk is shorter unless the size is a multiple; the trailer gives it.
      const std::uint64_t isize = Lit32(s, s.size() - 4);
      const std::uint64_t avant = static_cast<std::uint64_t>(longueurMorceau_) * (morceaux_.size() - 1);
      std::uint64_t dernier = (isize - avant) & 0xFFFFFFFFull;
      if (dernier == 0 || dernier > longueurMorceau_) Echec("fichier tronqué ou endommagé (taille finale)");
      taille_ = avant + dernier;
    }
  } else {
    taille_ = Lit32(s, s.size() - 4);
  }
}

std::string LecteurDictzip::LireTout() const {
  Inflateur in(15 + 16);
  std::string sortie;
  sortie.reserve(static_cast<std::size_t>(std::min<std::uint64_t>(taille_, std::uint64_t{1} << 32)));
  std::size_t lu = 0;
  char tampon[1 << 16];
  int r = Z_OK;
  while (true) {
    if (in.z.avail_in == 0 && lu < octets_.size()) {
      const std::size_t n = std::min(kTranche, octets_.size() - lu);
      in.z.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(octets_.data() + lu));
      in.z.avail_in = static_cast<uInt>(n);
      lu += n;
    }
    in.z.next_out = reinterpret_cast<Bytef*>(tampon);
    in.z.avail_out = sizeof tampon;
    r = inflate(&in.z, Z_NO_FLUSH);
    sortie.append(tampon, sizeof tampon - in.z.avail_out);
    if (r == Z_STREAM_END) break;
    if (r == Z_BUF_ERROR && in.z.avail_in == 0 && lu == octets_.size()) Echec("fichier tronqué");
    if (r != Z_OK) Echec(r == Z_DATA_ERROR ? "données compressées endommagées" : "décompression impossible");
  }
  return sortie;
}

std::string LecteurDictzip::Lire(std::uint64_t debut, std::uint64_t longueur) const {
  if (debut > taille_ || longueur > taille_ - debut) Echec("lecture au-delà de la fin des données");
  if (longueur == 0) return {};
  if (!AccesDirect()) {
    std::string tout = LireTout();
    if (debut + longueur > tout.size()) Echec("lecture au-delà de la fin des données");
    return tout.substr(static_cast<std::size_t>(debut), static_cast<std::size_t>(longueur));
  }
  const std::size_t premier = static_cast<std::size_t>(debut / longueurMorceau_);
  const std::size_t dernier = static_cast<std::size_t>((debut + longueur - 1) / longueurMorceau_);
  std::string brut;
  brut.reserve((dernier - premier + 1) * longueurMorceau_);
  std::string tampon(longueurMorceau_, '\0');
  Inflateur in(-15);
  for (std::size_t i = premier; i <= dernier; ++i) {
    in.z.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(octets_.data() + positions_[i]));
    in.z.avail_in = morceaux_[i];
    in.z.next_out = reinterpret_cast<Bytef*>(tampon.data());
    in.z.avail_out = static_cast<uInt>(tampon.size());
    const int r = inflate(&in.z, Z_SYNC_FLUSH);
    const std::size_t attendu = i + 1 < morceaux_.size()
                                    ? longueurMorceau_
                                    : static_cast<std::size_t>(taille_ - std::uint64_t{longueurMorceau_} * i);
    const std::size_t obtenu = tampon.size() - in.z.avail_out;
    if ((r != Z_OK && r != Z_STREAM_END && r != Z_BUF_ERROR) || obtenu != attendu || in.z.avail_in != 0)
      Echec("données compressées endommagées (morceau " + std::to_string(i + 1) + ")");
    brut.append(tampon, 0, obtenu);
  }
  return brut.substr(static_cast<std::size_t>(debut - std::uint64_t{longueurMorceau_} * premier),
                     static_cast<std::size_t>(longueur));
}

struct LecteurSequentiel::Flux {
  z_stream z{};
};

LecteurSequentiel::LecteurSequentiel(const std::filesystem::path& chemin) : nom_(chemin.string()) {
  gzip_ = EstGzip(chemin);
  f_ = std::fopen(chemin.c_str(), "rb");
  if (!f_) Echec("fichier introuvable ou illisible");
  if (gzip_) {
    z_ = new Flux;
    if (inflateInit2(&z_->z, 15 + 16) != Z_OK) {
      delete z_;
      z_ = nullptr;
      throw std::bad_alloc();
    }
  }
}

LecteurSequentiel::~LecteurSequentiel() {
  if (z_) {
    inflateEnd(&z_->z);
    delete z_;
  }
  if (f_) std::fclose(f_);
}

void LecteurSequentiel::Echec(const std::string& probleme) const { throw ErreurImport(nom_, "", probleme); }

bool LecteurSequentiel::Produire() {
  if (fin_) return false;
  constexpr std::size_t kBloc = std::size_t{1} << 20;
  if (!gzip_) {
    const std::size_t avant = fenetre_.size();
    fenetre_.resize(avant + kBloc);
    const std::size_t n = std::fread(fenetre_.data() + avant, 1, kBloc, f_);
    fenetre_.resize(avant + n);
    if (n < kBloc) {
      if (std::ferror(f_)) Echec("lecture impossible");
      fin_ = true;
    }
    return n > 0;
  }
  z_stream& z = z_->z;
  if (z.avail_in == 0) {
    entree_.resize(kBloc);
    const std::size_t n = std::fread(entree_.data(), 1, kBloc, f_);
    if (n == 0 && std::ferror(f_)) Echec("lecture impossible");
    if (n == 0) Echec("fichier tronqué");
    z.next_in = reinterpret_cast<Bytef*>(entree_.data());
    z.avail_in = static_cast<uInt>(n);
  }
  const std::size_t avant = fenetre_.size();
  fenetre_.resize(avant + 4 * kBloc);
  z.next_out = reinterpret_cast<Bytef*>(fenetre_.data() + avant);
  z.avail_out = static_cast<uInt>(4 * kBloc);
  const int r = inflate(&z, Z_NO_FLUSH);
  fenetre_.resize(fenetre_.size() - z.avail_out);
  if (r == Z_STREAM_END) {
    fin_ = true;
  } else if (r == Z_BUF_ERROR && z.avail_in == 0) {
    // Needs more input: the next call reads it, or finds the file cut.
  } else if (r != Z_OK) {
    Echec(r == Z_DATA_ERROR ? "données compressées endommagées" : "décompression impossible");
  }
  return true;
}

void LecteurSequentiel::Finir() {
  while (Produire()) {
    base_ += fenetre_.size();
    fenetre_.clear();
  }
}

bool LecteurSequentiel::Lire(std::uint64_t debut, std::uint64_t longueur, std::string_view& octets) {
  if (debut < base_) throw std::logic_error("LecteurSequentiel: lecture en arrière");
  // What lies before `debut` is no longer needed; it is dropped once it is the larger part,
  // so that each byte moves a bounded number of times.
  const std::uint64_t inutile = std::min<std::uint64_t>(debut - base_, fenetre_.size());
  if (inutile > 0 && inutile >= fenetre_.size() / 2) {
    fenetre_.erase(0, static_cast<std::size_t>(inutile));
    base_ += inutile;
  }
  if (longueur > std::numeric_limits<std::uint64_t>::max() - debut) return false;
  while (base_ + fenetre_.size() < debut + longueur) {
    if (!Produire()) return false;
    // Skipping far ahead: drop what was decompressed before the start.
    if (base_ + fenetre_.size() <= debut) {
      base_ += fenetre_.size();
      fenetre_.clear();
    }
  }
  octets = std::string_view(fenetre_).substr(static_cast<std::size_t>(debut - base_), static_cast<std::size_t>(longueur));
  return true;
}

namespace {

// Compresses chunks [debut, fin) of `donnees`, each on its own (the window is reset at each
// chunk, which is what a full flush promises a reader), into `sortie[i]`.
void CompresseMorceaux(std::string_view donnees, std::size_t morceau, std::size_t debut, std::size_t fin,
                       std::vector<std::string>& sortie) {
  z_stream z{};
  if (deflateInit2(&z, Z_DEFAULT_COMPRESSION, Z_DEFLATED, -15, 8, Z_DEFAULT_STRATEGY) != Z_OK) throw std::bad_alloc();
  std::string tampon(deflateBound(&z, static_cast<uLong>(morceau)) + 64, '\0');
  for (std::size_t i = debut; i < fin; ++i) {
    deflateReset(&z);
    const std::size_t a = i * morceau, n = std::min(morceau, donnees.size() - a);
    z.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(donnees.data() + a));
    z.avail_in = static_cast<uInt>(n);
    z.next_out = reinterpret_cast<Bytef*>(tampon.data());
    z.avail_out = static_cast<uInt>(tampon.size());
    const int r = deflate(&z, Z_FULL_FLUSH);
    if (r != Z_OK || z.avail_in != 0) {
      deflateEnd(&z);
      throw std::runtime_error("compression impossible");
    }
    sortie[i].assign(tampon.data(), tampon.size() - z.avail_out);
  }
  deflateEnd(&z);
}

}  // namespace

std::string CompresseDictzip(std::string_view donnees, std::string_view nom, std::size_t morceau) {
  if (morceau == 0 || morceau > kMorceauDictzip) throw std::invalid_argument("taille de morceau");
  const std::size_t nombre = (donnees.size() + morceau - 1) / morceau;
  // XLEN = 4 (subfield head) + 6 (version, length, count) + 2 per chunk must fit 16 bits.
  if (10 + 2 * nombre > 0xFFFF - 4) throw std::length_error("données trop grandes pour la table dictzip");

  // Chunks are independent: the machine's cores share them in contiguous runs.
  std::vector<std::string> comprimes(nombre);
  const std::size_t fils = std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, 4);
  const std::size_t parFil = (nombre + fils - 1) / std::max<std::size_t>(fils, 1);
  std::vector<std::thread> travail;
  std::vector<std::exception_ptr> erreurs(fils);
  for (std::size_t f = 0; f < fils && f * parFil < nombre; ++f) {
    const std::size_t a = f * parFil, b = std::min(nombre, a + parFil);
    travail.emplace_back([&, a, b, f] {
      try {
        CompresseMorceaux(donnees, morceau, a, b, comprimes);
      } catch (...) {
        erreurs[f] = std::current_exception();
      }
    });
  }
  for (auto& t : travail) t.join();
  for (auto& e : erreurs)
    if (e) std::rethrow_exception(e);

  std::string s;
  std::size_t total = 0;
  for (const auto& c : comprimes) {
    if (c.size() > 0xFFFF) throw std::length_error("morceau compressé trop grand");
    total += c.size();
  }
  s.reserve(total + 64 + nom.size() + 2 * nombre);
  s += "\x1F\x8B\x08";
  s += static_cast<char>(kFextra | (nom.empty() ? 0 : kFname));
  Met32(s, 0);  // no modification time: the same input gives the same bytes
  s += '\0';    // XFL
  s += '\x03';  // OS: Unix
  Met16(s, static_cast<std::uint32_t>(10 + 2 * nombre));
  s += "RA";
  Met16(s, static_cast<std::uint32_t>(6 + 2 * nombre));
  Met16(s, 1);
  Met16(s, static_cast<std::uint32_t>(morceau));
  Met16(s, static_cast<std::uint32_t>(nombre));
  for (const auto& c : comprimes) Met16(s, static_cast<std::uint32_t>(c.size()));
  if (!nom.empty()) {
    s += nom;
    s += '\0';
  }
  for (auto& c : comprimes) {
    s += c;
    std::string().swap(c);
  }
  // The final block, empty, then the gzip trailer.
  s += '\x03';
  s += '\0';
  Met32(s, static_cast<std::uint32_t>(crc32_z(0, reinterpret_cast<const Bytef*>(donnees.data()), donnees.size())));
  Met32(s, static_cast<std::uint32_t>(donnees.size() & 0xFFFFFFFFu));
  return s;
}

void EcrireDictzip(EcritureSure& sortie, std::string_view donnees, std::string_view nom, std::size_t morceau) {
  sortie.Ecrire(CompresseDictzip(donnees, nom, morceau));
}

std::string LitFichierSource(const std::filesystem::path& chemin) {
  std::ifstream f(chemin, std::ios::binary);
  if (!f) throw ErreurImport(chemin.string(), "", "fichier introuvable ou illisible");
  std::string s;
  f.seekg(0, std::ios::end);
  s.resize(static_cast<std::size_t>(f.tellg()));
  f.seekg(0);
  if (!s.empty() && !f.read(s.data(), static_cast<std::streamsize>(s.size())))
    throw ErreurImport(chemin.string(), "", "lecture impossible");
  return s;
}

}  // namespace lex::exchange
