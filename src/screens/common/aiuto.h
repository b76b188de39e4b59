#pragma once
// The two kinds of help: topics by context number (HTML shipped in data/help/) and
// sections of HelpUtility.txt shown in frmHelp.

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <filesystem>
#include <optional>

#include "screens/common/sessione.h"

namespace gorgo::screens {

// Context numbers of the screens' help buttons.
constexpr int AiutoInserimento = 1010, AiutoConsultazione = 1020, AiutoSommeDistanze = 1030,
              AiutoAggiornamentiSuper = 1040, AiutoAggiornaSuperInternet = 1050, AiutoEsportazione = 1060,
              AiutoStampaEstrazioni = 1070, AiutoOpzioni = 6040;

// The sections of HelpUtility.txt that the screens' help buttons ask for.
inline constexpr const char* SezioneAmboEnucleato = "[Ambo Enucleato]";
inline constexpr const char* SezioneUtility = "[Utility somma cinquine]";
inline constexpr const char* SezioneNumeriSimpatici = "[Ricerca simultanea per il gioco della quaterna]";
inline constexpr const char* SezioneAmbateAmbiTerniMulti = "[Ambate ambi e terni multiruota]";
inline constexpr const char* SezionePuntiIncogniti = "[Punti incogniti]";

// Shows the topic of a context number in the help window; nothing when there is none.
void HelpContext(QWidget* parent, const config::FileIni& ini, int contesto);
// Shows the section "[titolo]" of HelpUtility.txt in frmHelp; nothing when it is absent.
void MostraAiuto(QWidget* parent, Sessione& sessione, const QString& sezione);

// The HTML page of a context number (data/help/<n>.html); empty when there is none.
QString FileArgomentoAiuto(int contesto);
// HelpUtility.txt: in the program folder when it is there (the user's own), else the one
// that ships with the program; empty when neither exists.
QString FileAiutoUtility(const std::filesystem::path& percorsoProgramma);
// The bytes of a help text as text: UTF-8, or Windows-1252 when they are not valid UTF-8.
QString DecodificaTestoAiuto(const QByteArray& dati);
// The lines of a section: after the first line that holds the title (letters of either
// case), up to the end or to a line that begins with "["; nullopt when no line holds it.
std::optional<QStringList> SezioneAiuto(const QString& testo, const QString& sezione);

}  // namespace gorgo::screens
