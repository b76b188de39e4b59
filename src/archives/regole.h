#pragma once
// Small rules shared by many procedures: the check of a typed date and its conversion
// into a draw, and the number functions.

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "archives/messaggio.h"
#include "archives/storia.h"

namespace gorgo::archives {

class Archivio;

// Results of a date check. On a refusal `messaggio` holds what the screen shows, and the
// caller stops quietly after showing it (a running search also clears ElaborazioneInCorso).
struct RisultatoData {
    bool ErroreData = false;
    Messaggio messaggio;
    int32_t IndiceTrovato = 0;
    std::string DataTrovata;
};

// The fixed texts of the date check.
extern const std::string_view MessaggioFormatoData;  // the four lines about GG/MM/AAAA
extern const std::string_view MessaggioDataErrata;   // "Data errata !"
std::string MessaggioDataInferiore(std::string_view primaData);
std::string MessaggioDataSuperiore(std::string_view ultimaData);

// The host's date parser: exactly ten characters in the fixed form, a real calendar date.
bool DataAccettata(std::string_view testo);
// The system's own month-and-day rule; its leap years have no century rule.
bool DataErrata(int giorno, int mese, int anno);

// Lotto archive: on the files (the year index keeps the walk within one year) or on the
// in-memory history (binary search); both give the same results.
RisultatoData ControllaData(std::string_view testo, const Archivio& archivio, bool precedente);
RisultatoData ControllaData(std::string_view testo, const StoriaLotto& storia, bool precedente);

// SuperEnalotto archive: fixed lower limit, walk from PrimoIndiceRicercaSuper.
constexpr std::string_view DataInizioSuper = "04/01/1947";
constexpr int32_t PrimoIndiceRicercaSuper = 3966;
RisultatoData ControllaDataSuper(std::string_view testo, const Archivio& archivio, bool precedente);

// Last digit of the number: 7 -> 7, 90 -> 0.
int CadenzaDi(int numero);
// Group of ten counting from 1: 1..10 -> 1, 11..20 -> 2, 81..90 -> 9.
int DecinaDi(int numero);

// The three reductions into 1..90; each procedure names the one it uses.
int Fuori90Somma(int n);     // a single sum: take 90 off once above 90
int Fuori90Prodotto(int n);  // remainder by 90, 0 becomes 90
int Fuori90Catena(int n);    // add or take off 90 until in 1..90, 0 becomes 90

bool EsisteFile(const std::filesystem::path& percorso);

}  // namespace gorgo::archives
