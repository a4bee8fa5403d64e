// Accents typed before their letter (dead keys) on GTK. The program takes its keys at key down,
// before GTK's input method, which is where such accents are put on their letters: the accent
// is kept here and put on the next letter instead, for every field and every mode.
#pragma once

namespace lex::wx {

class TouchesMortes {
 public:
  // Whether the key is an accent to keep for the next letter; it is kept when it is.
  bool Retient(unsigned keyval);
  // The character the key gives, with the accent kept before it when there is one (then
  // forgotten): "é" for an acute accent and "e", the spacing accent itself before a blank, the
  // bare character when the two do not compose.
  char32_t Compose(char32_t c);
  bool Attend() const { return marque_ != 0; }
  void Oublie() { marque_ = 0; }

 private:
  char32_t marque_ = 0;  // the combining mark of the accent kept
  char32_t espacement_ = 0;  // the same accent as a character of its own
};

}  // namespace lex::wx
