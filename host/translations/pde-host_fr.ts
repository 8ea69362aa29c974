<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>host</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>et %n autre</numerusform>
            <numerusform>et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source> and </source>
        <translation> et </translation>
    </message>
    <message>
        <source>Conflicting Settings</source>
        <translation>Réglages incompatibles</translation>
    </message>
    <message>
        <source>The printer can&apos;t print these together:</source>
        <translation>L’imprimante ne peut pas combiner :</translation>
    </message>
    <message>
        <source>There is no simple way to put this right. Go back and choose another value for one of them.</source>
        <translation>Il n’y a pas de solution simple. Revenez en arrière et choisissez une autre valeur pour l’un d’eux.</translation>
    </message>
    <message>
        <source>This would put it right:</source>
        <translation>Ceci résoudrait le problème :</translation>
    </message>
    <message>
        <source>&amp;Go Back</source>
        <translation>&amp;Retour</translation>
    </message>
    <message>
        <source>Print &amp;Anyway</source>
        <translation>Imprimer &amp;quand même</translation>
    </message>
    <message>
        <source>&amp;Change and Print</source>
        <translation>&amp;Modifier et imprimer</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Modifier</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>a state and why</extracomment>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Not available with %1, and others</source>
        <translation>Non disponible avec %1 et d’autres</translation>
    </message>
    <message>
        <source>Not available with %1</source>
        <translation>Non disponible avec %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <translation>%1 : %2 → %3</translation>
    </message>
    <message>
        <source>CUPS server %1</source>
        <translation>Serveur CUPS %1</translation>
    </message>
    <message>
        <source>it was given up</source>
        <translation>abandonné</translation>
    </message>
    <message>
        <source>no CUPS server answers there: %1</source>
        <translation>aucun serveur CUPS n’y répond : %1</translation>
    </message>
    <message>
        <source>CUPS server %1 sent no whole answer within %2 seconds</source>
        <translation>Le serveur CUPS %1 n’a pas envoyé de réponse complète en %2 secondes</translation>
    </message>
    <message>
        <source>CUPS server %1 gave no answer within %2 seconds</source>
        <translation>Le serveur CUPS %1 n’a pas répondu en %2 secondes</translation>
    </message>
    <message>
        <source>CUPS server %1 closed the connection or sent no valid answer</source>
        <translation>Le serveur CUPS %1 a fermé la connexion ou envoyé une réponse non valide</translation>
    </message>
    <message>
        <source>CUPS server %1: %2</source>
        <translation>Serveur CUPS %1 : %2</translation>
    </message>
    <message>
        <source>no such queue on CUPS server %1</source>
        <translation>aucune file de ce nom sur le serveur CUPS %1</translation>
    </message>
    <message>
        <source>has no default queue</source>
        <translation>n’a pas de file par défaut</translation>
    </message>
    <message>
        <source>the queue has no PPD</source>
        <translation>la file n’a pas de PPD</translation>
    </message>
    <message>
        <source>its PPD can&apos;t be read: %1</source>
        <translation>sa PPD ne peut pas être lue : %1</translation>
    </message>
    <message>
        <source>its PPD is too large</source>
        <translation>sa PPD est trop grande</translation>
    </message>
    <message>
        <source>job %1</source>
        <translation>tâche %1</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>Imprimer dans un fichier</translation>
    </message>
    <message>
        <source>Authentication Needed</source>
        <translation>Authentification requise</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom :</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>&amp;Mot de passe :</translation>
    </message>
    <message>
        <source>%1 didn&apos;t finish within %2 seconds</source>
        <translation>%1 n’a pas fini en %2 secondes</translation>
    </message>
    <message>
        <source>given up</source>
        <translation>abandonné</translation>
    </message>
    <message>
        <source>%1 wrote too much</source>
        <translation>%1 a trop écrit</translation>
    </message>
    <message>
        <source>%1 can&apos;t convert it to %2%3</source>
        <translation>%1 ne peut pas le convertir en %2%3</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>est vide</translation>
    </message>
    <message>
        <source>is neither PostScript nor PDF</source>
        <translation>n’est ni du PostScript ni un PDF</translation>
    </message>
    <message>
        <source>a PDF needs pdftops or gs, and neither is installed</source>
        <translation>un PDF nécessite pdftops ou gs, et aucun n’est installé</translation>
    </message>
    <message>
        <source>PostScript needs gs, which isn&apos;t installed</source>
        <translation>PostScript nécessite gs, qui n’est pas installé</translation>
    </message>
    <message>
        <source>can&apos;t be written: %1</source>
        <translation>ne peut pas être écrit : %1</translation>
    </message>
    <message>
        <source>a value of one&apos;s own (“%1”) is no longer taken</source>
        <translation>une valeur personnalisée (« %1 ») n’est plus acceptée</translation>
    </message>
    <message>
        <source>“%1” is outside of what this printer takes</source>
        <translation>« %1 » est hors de ce que cette imprimante accepte</translation>
    </message>
    <message>
        <source>“%1” is no longer there</source>
        <translation>« %1 » n’existe plus</translation>
    </message>
    <message>
        <source>“%1” is no longer a setting of this printer; the preset has “%2”</source>
        <translation>« %1 » n’est plus un réglage de cette imprimante ; le préréglage a « %2 »</translation>
    </message>
    <message>
        <source>%1: is locked and stays “%2”</source>
        <translation>%1 : est verrouillé et reste « %2 »</translation>
    </message>
    <message>
        <source>passwords aren&apos;t kept in presets; enter it again</source>
        <translation>les mots de passe ne sont pas conservés dans les préréglages ; saisissez-le de nouveau</translation>
    </message>
    <message>
        <source>Not possible: %1.</source>
        <translation>Impossible : %1.</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>le nom est vide</translation>
    </message>
    <message>
        <source>the name begins or ends with a blank</source>
        <translation>le nom commence ou finit par une espace</translation>
    </message>
    <message>
        <source>the name has more than %1 characters</source>
        <translation>le nom a plus de %1 caractères</translation>
    </message>
    <message>
        <source>the name has a character that can&apos;t be shown</source>
        <translation>le nom a un caractère qui ne peut pas être affiché</translation>
    </message>
    <message>
        <source>can&apos;t be made</source>
        <translation>ne peut pas être créé</translation>
    </message>
    <message>
        <source>is in use by another program</source>
        <translation>est utilisé par un autre programme</translation>
    </message>
    <message>
        <source>“%1” isn&apos;t what it should be</source>
        <translation>« %1 » n’est pas ce qu’il devrait être</translation>
    </message>
    <message>
        <source>“%1” has a character that is none</source>
        <translation>« %1 » a un caractère qui n’en est pas un</translation>
    </message>
    <message>
        <source>“%1” has an empty key</source>
        <translation>« %1 » a une clé vide</translation>
    </message>
    <message>
        <source>is larger than %1 MB</source>
        <translation>dépasse %1 Mo</translation>
    </message>
    <message>
        <source>isn&apos;t a preset: line %1: %2</source>
        <translation>n’est pas un préréglage : ligne %1 : %2</translation>
    </message>
    <message>
        <source>isn&apos;t a preset</source>
        <translation>n’est pas un préréglage</translation>
    </message>
    <message>
        <source>has a key twice</source>
        <translation>a deux fois la même clé</translation>
    </message>
    <message>
        <source>was made by a newer version of this program (format %1); it is left as it is</source>
        <translation>a été créé par une version plus récente de ce programme (format %1) ; il reste tel quel</translation>
    </message>
    <message>
        <source>has the unknown key “%1”</source>
        <translation>a la clé inconnue « %1 »</translation>
    </message>
    <message>
        <source>can&apos;t be removed: %1</source>
        <translation>ne peut pas être supprimé : %1</translation>
    </message>
    <message>
        <source>“%1” has no preset of this name</source>
        <translation>« %1 » n’a pas de préréglage de ce nom</translation>
    </message>
    <message>
        <source>is too large for a preset</source>
        <translation>est trop grand pour un préréglage</translation>
    </message>
    <message>
        <source>The last used settings of “%1”</source>
        <translation>Les derniers réglages utilisés de « %1 »</translation>
    </message>
    <message>
        <source>the document is damaged.</source>
        <translation>le document est endommagé.</translation>
    </message>
    <message>
        <source>the document is protected by a password.</source>
        <translation>le document est protégé par un mot de passe.</translation>
    </message>
    <message>
        <source>the document has no pages.</source>
        <translation>le document n’a pas de pages.</translation>
    </message>
    <message>
        <source>the document is too large.</source>
        <translation>le document est trop grand.</translation>
    </message>
    <message>
        <source>Page %1 is damaged.</source>
        <translation>La page %1 est endommagée.</translation>
    </message>
    <message>
        <source>Page %1 has a size that can&apos;t be drawn.</source>
        <translation>La page %1 a une taille qui ne peut pas être dessinée.</translation>
    </message>
    <message>
        <source>Page %1 takes too long to draw.</source>
        <translation>Le dessin de la page %1 prend trop de temps.</translation>
    </message>
    <message>
        <source>Page %1 can&apos;t be drawn.</source>
        <translation>La page %1 ne peut pas être dessinée.</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation>est trop grand</translation>
    </message>
    <message>
        <source>%1: line %2 isn&apos;t UTF-8</source>
        <translation>%1 : la ligne %2 n’est pas en UTF-8</translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation>État inconnu</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Prête</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impression en cours</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>%1, takes no jobs</source>
        <extracomment>a state, such as &quot;Idle&quot;</extracomment>
        <translation>%1, n’accepte pas de tâches</translation>
    </message>
    <message>
        <source>The printer takes no jobs at the moment.</source>
        <translation>L’imprimante n’accepte pas de tâches pour le moment.</translation>
    </message>
    <message>
        <source>The printer is paused. Jobs wait until it goes on.</source>
        <translation>L’imprimante est en pause. Les tâches attendent qu’elle reprenne.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>a sentence and why</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>non connectée</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>connexion en cours</translation>
    </message>
    <message>
        <source>answers in a wrong way</source>
        <translation>répond de façon incorrecte</translation>
    </message>
    <message>
        <source>driver isn&apos;t safe to run</source>
        <translation>pilote non sûr</translation>
    </message>
    <message>
        <source>driver is incomplete</source>
        <translation>pilote incomplet</translation>
    </message>
    <message>
        <source>certificate isn&apos;t valid</source>
        <translation>certificat non valide</translation>
    </message>
    <message>
        <source>job is held</source>
        <translation>tâche retenue</translation>
    </message>
    <message>
        <source>job has stopped</source>
        <translation>tâche arrêtée</translation>
    </message>
    <message>
        <source>job was cancelled</source>
        <translation>tâche annulée</translation>
    </message>
    <message>
        <source>job was given up</source>
        <translation>tâche abandonnée</translation>
    </message>
    <message>
        <source>account is needed</source>
        <translation>compte requis</translation>
    </message>
    <message>
        <source>account&apos;s limit is reached</source>
        <translation>limite du compte atteinte</translation>
    </message>
    <message>
        <source>set up anew</source>
        <translation>reconfigurée</translation>
    </message>
    <message>
        <source>cover is open</source>
        <translation>capot ouvert</translation>
    </message>
    <message>
        <source>switched off for jobs</source>
        <translation>désactivée pour les tâches</translation>
    </message>
    <message>
        <source>out of developer</source>
        <translation>plus de révélateur</translation>
    </message>
    <message>
        <source>developer is low</source>
        <translation>révélateur bientôt épuisé</translation>
    </message>
    <message>
        <source>door is open</source>
        <translation>porte ouverte</translation>
    </message>
    <message>
        <source>fuser is too hot</source>
        <translation>unité de fusion trop chaude</translation>
    </message>
    <message>
        <source>fuser is too cold</source>
        <translation>unité de fusion trop froide</translation>
    </message>
    <message>
        <source>asleep</source>
        <translation>en veille</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>nouvelles tâches retenues</translation>
    </message>
    <message>
        <source>shows where it stands</source>
        <translation>se signale</translation>
    </message>
    <message>
        <source>tray is missing</source>
        <translation>bac absent</translation>
    </message>
    <message>
        <source>a lock is open</source>
        <translation>un verrou est ouvert</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>mémoire insuffisante</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>plus d’encre</translation>
    </message>
    <message>
        <source>ink is low</source>
        <translation>encre bientôt épuisée</translation>
    </message>
    <message>
        <source>ink is missing</source>
        <translation>encre absente</translation>
    </message>
    <message>
        <source>waste box is almost full</source>
        <translation>collecteur presque plein</translation>
    </message>
    <message>
        <source>waste box is full</source>
        <translation>collecteur plein</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>plus de papier</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>bourrage papier</translation>
    </message>
    <message>
        <source>paper is low</source>
        <translation>papier bientôt épuisé</translation>
    </message>
    <message>
        <source>needs other paper</source>
        <translation>autre papier requis</translation>
    </message>
    <message>
        <source>about to pause</source>
        <translation>va se mettre en pause</translation>
    </message>
    <message>
        <source>drum is used up</source>
        <translation>tambour usé</translation>
    </message>
    <message>
        <source>drum is nearly used up</source>
        <translation>tambour presque usé</translation>
    </message>
    <message>
        <source>needs attention</source>
        <translation>intervention requise</translation>
    </message>
    <message>
        <source>output tray is almost full</source>
        <translation>bac de sortie presque plein</translation>
    </message>
    <message>
        <source>output tray is full</source>
        <translation>bac de sortie plein</translation>
    </message>
    <message>
        <source>output tray is missing</source>
        <translation>bac de sortie absent</translation>
    </message>
    <message>
        <source>switching off</source>
        <translation>arrêt en cours</translation>
    </message>
    <message>
        <source>about to go on</source>
        <translation>va reprendre</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>éteinte</translation>
    </message>
    <message>
        <source>no room for more jobs</source>
        <translation>plus de place pour d’autres tâches</translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation>en partie arrêtée</translation>
    </message>
    <message>
        <source>about to stop</source>
        <translation>va s’arrêter</translation>
    </message>
    <message>
        <source>being tested</source>
        <translation>test en cours</translation>
    </message>
    <message>
        <source>doesn&apos;t answer</source>
        <translation>ne répond pas</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>plus de toner</translation>
    </message>
    <message>
        <source>toner is low</source>
        <translation>toner bientôt épuisé</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>“%1” must be from %2 to %3 points.</source>
        <translation>« %1 » doit être compris entre %2 et %3 points.</translation>
    </message>
    <message>
        <source>“%1” must be from %2 to %3.</source>
        <translation>« %1 » doit être compris entre %2 et %3.</translation>
    </message>
    <message>
        <source>“%1” has a character that can&apos;t be printed.</source>
        <translation>« %1 » a un caractère qui ne peut pas être imprimé.</translation>
    </message>
    <message>
        <source>“%1” takes digits only.</source>
        <translation>« %1 » n’accepte que des chiffres.</translation>
    </message>
    <message>
        <source>“%1” is too long: at most %2 characters.</source>
        <translation>« %1 » est trop long : %2 caractères au plus.</translation>
    </message>
    <message>
        <source>“%1” is too long: at most %2 characters, of which letters other than A to Z take several.</source>
        <translation>« %1 » est trop long : %2 caractères au plus, les lettres autres que A à Z en prenant plusieurs.</translation>
    </message>
    <message>
        <source>“%1” is missing.</source>
        <translation>« %1 » manque.</translation>
    </message>
    <message>
        <source>“%1” is too short: at least %2 characters.</source>
        <translation>« %1 » est trop court : %2 caractères au moins.</translation>
    </message>
    <message>
        <source>“%1” must be a number.</source>
        <translation>« %1 » doit être un nombre.</translation>
    </message>
    <message>
        <source>There are %1 more values, which stay as they are.</source>
        <translation>Il y a %1 autres valeurs, qui restent telles quelles.</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1 :</translation>
    </message>
    <message>
        <source>Asked when you print</source>
        <translation>Demandé à l’impression</translation>
    </message>
    <message>
        <source>%1 to %2 characters</source>
        <translation>de %1 à %2 caractères</translation>
    </message>
    <message>
        <source>at most %1 characters</source>
        <translation>%1 caractères au plus</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>de %1 à %2</translation>
    </message>
    <message>
        <source>“%1” must be a number %2.</source>
        <translation>« %1 » doit être un nombre %2.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t have braces in it.</source>
        <translation>« %1 » ne peut pas contenir d’accolades.</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>Portrait, upside down</source>
        <translation>Portrait, tête en bas</translation>
    </message>
    <message>
        <source>Landscape, upside down</source>
        <translation>Paysage, tête en bas</translation>
    </message>
    <message>
        <source>This printer doesn&apos;t offer to print on both sides.</source>
        <translation>Cette imprimante ne propose pas l’impression recto verso.</translation>
    </message>
    <message>
        <source>This printer doesn&apos;t offer a choice of paper sizes.</source>
        <translation>Cette imprimante ne propose pas de choix de formats de papier.</translation>
    </message>
    <message>
        <source>This printer doesn&apos;t offer a choice of paper sources.</source>
        <translation>Cette imprimante ne propose pas de choix de sources de papier.</translation>
    </message>
    <message>
        <source>This printer doesn&apos;t offer a choice of paper types.</source>
        <translation>Cette imprimante ne propose pas de choix de types de papier.</translation>
    </message>
    <message>
        <source>A file has the whole document in it, once and as it is.</source>
        <translation>Un fichier contient tout le document, une fois et tel quel.</translation>
    </message>
    <message>
        <source>Set this among the printer&apos;s own options.</source>
        <translation>Réglez ceci parmi les options propres à l’imprimante.</translation>
    </message>
    <message>
        <source>There is only one copy.</source>
        <translation>Il n’y a qu’une copie.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Toutes les pages</translation>
    </message>
    <message>
        <source>As in the document</source>
        <translation>Comme dans le document</translation>
    </message>
    <message>
        <source>%1: “%2” can&apos;t be used with this printer</source>
        <translation>%1 : « %2 » ne peut pas être utilisé avec cette imprimante</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>inch</source>
        <translation>pouces</translation>
    </message>
    <message>
        <source>pt</source>
        <translation>pt</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>from %1 to %2 %3</source>
        <translation>de %1 à %2 %3</translation>
    </message>
    <message>
        <source>“%1” can&apos;t stand there. Type pages like 1-3,5,9-.</source>
        <translation>« %1 » ne peut pas se trouver là. Saisissez des pages comme 1-3,5,9-.</translation>
    </message>
    <message>
        <source>“%1”: pages count from 1.</source>
        <translation>« %1 » : les pages commencent à 1.</translation>
    </message>
    <message>
        <source>“%1”: the document has only one page.</source>
        <translation>« %1 » : le document n’a qu’une page.</translation>
    </message>
    <message>
        <source>“%1”: the document has only %2 pages.</source>
        <translation>« %1 » : le document n’a que %2 pages.</translation>
    </message>
    <message>
        <source>“%1” is too great for a page.</source>
        <translation>« %1 » est trop grand pour une page.</translation>
    </message>
    <message>
        <source>“%1” ends before it begins.</source>
        <translation>« %1 » finit avant de commencer.</translation>
    </message>
    <message>
        <source>These are more than %1 ranges.</source>
        <translation>Il y a plus de %1 plages.</translation>
    </message>
    <message>
        <source>Type the pages to print, such as 1-3,5,9-.</source>
        <translation>Saisissez les pages à imprimer, par exemple 1-3,5,9-.</translation>
    </message>
    <message>
        <source>“%1” isn&apos;t a page. Type pages like 1-3,5,9-.</source>
        <translation>« %1 » n’est pas une page. Saisissez des pages comme 1-3,5,9-.</translation>
    </message>
    <message>
        <source>A page is missing before a comma.</source>
        <translation>Il manque une page avant une virgule.</translation>
    </message>
    <message>
        <source>A page is missing at the end.</source>
        <translation>Il manque une page à la fin.</translation>
    </message>
    <message>
        <source>Password for This Job</source>
        <translation>Mot de passe pour cette tâche</translation>
    </message>
    <message>
        <source>It isn&apos;t kept, and goes with this job only.</source>
        <translation>Il n’est pas conservé et ne vaut que pour cette tâche.</translation>
    </message>
    <message>
        <source>%1, %2:</source>
        <translation>%1, %2 :</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>Image options</source>
        <translation>Options d’image</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Tâche</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Assembler</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Pages per side</source>
        <translation>Pages par face</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autres</translation>
    </message>
    <message>
        <source>not sent</source>
        <translation>non envoyé</translation>
    </message>
    <message>
        <source>has a character in its name that can&apos;t be sent</source>
        <translation>a dans son nom un caractère qui ne peut pas être envoyé</translation>
    </message>
    <message>
        <source>has a name that can&apos;t be sent</source>
        <translation>a un nom qui ne peut pas être envoyé</translation>
    </message>
    <message>
        <source>has a value with a control character, which can&apos;t be sent</source>
        <translation>a une valeur avec un caractère de contrôle, qui ne peut pas être envoyé</translation>
    </message>
    <message>
        <source>has a value that is too long to be sent</source>
        <translation>a une valeur trop longue pour être envoyée</translation>
    </message>
    <message>
        <source>has a value that can&apos;t be sent</source>
        <translation>a une valeur qui ne peut pas être envoyée</translation>
    </message>
    <message>
        <source>was changed since it was opened</source>
        <translation>a été modifié depuis son ouverture</translation>
    </message>
    <message>
        <source>“%1”: with several pages on a side the sides are counted, and the last one is %2.</source>
        <translation>« %1 » : avec plusieurs pages par face, ce sont les faces qui comptent, et la dernière est %2.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t have such a value.</source>
        <translation>« %1 » ne peut pas avoir une telle valeur.</translation>
    </message>
    <message>
        <source>This option takes no values of one&apos;s own.</source>
        <translation>Cette option n’accepte pas de valeur personnelle.</translation>
    </message>
    <message>
        <source>This option takes several values, each by its name.</source>
        <translation>Cette option prend plusieurs valeurs, chacune par son nom.</translation>
    </message>
    <message>
        <source>This option has no value of such a name.</source>
        <translation>Cette option n’a pas de valeur de ce nom.</translation>
    </message>
    <message>
        <source>No answer came in time</source>
        <translation>Aucune réponse n’est arrivée à temps</translation>
    </message>
    <message>
        <source>the server doesn&apos;t know it</source>
        <translation>le serveur ne la connaît pas</translation>
    </message>
    <message>
        <source>the job was cancelled</source>
        <translation>la tâche a été annulée</translation>
    </message>
    <message>
        <source>it isn&apos;t known whether the job was sent</source>
        <translation>on ne sait pas si la tâche a été envoyée</translation>
    </message>
    <message>
        <source>it isn&apos;t known whether the job was cancelled</source>
        <translation>on ne sait pas si la tâche a été annulée</translation>
    </message>
    <message>
        <source>“%1” has no instance of this name</source>
        <translation>« %1 » n’a pas d’instance de ce nom</translation>
    </message>
    <message>
        <source>This option is given twice.</source>
        <translation>Cette option est donnée deux fois.</translation>
    </message>
    <message>
        <source>This option has no such choice.</source>
        <translation>Cette option n’a pas ce choix.</translation>
    </message>
    <message>
        <source>This option can&apos;t have such a value.</source>
        <translation>Cette option ne peut pas avoir une telle valeur.</translation>
    </message>
    <message>
        <source>This printer has no such option.</source>
        <translation>Cette imprimante n’a pas cette option.</translation>
    </message>
    <message>
        <source>This setting is locked.</source>
        <translation>Ce réglage est verrouillé.</translation>
    </message>
    <message>
        <source>only the last of its choices can be sent</source>
        <translation>seul le dernier de ses choix peut être envoyé</translation>
    </message>
    <message>
        <source>%1; it couldn&apos;t be cancelled, and may still be printed</source>
        <translation>%1 ; elle n’a pas pu être annulée et sera peut-être encore imprimée</translation>
    </message>
</context>
<context>
    <name>host::CommonSettings</name>
    <message>
        <source>%1:</source>
        <translation>%1 :</translation>
    </message>
    <message>
        <source>&amp;All pages</source>
        <translation>&amp;Toutes les pages</translation>
    </message>
    <message>
        <source>Page&amp;s:</source>
        <translation>Page&amp;s :</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>Pages à imprimer</translation>
    </message>
    <message>
        <source>1-3,5,9-</source>
        <translation>1-3,5,9-</translation>
    </message>
    <message>
        <source>Range:</source>
        <translation>Plage :</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Pages per side</source>
        <translation>Pages par face</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Recto verso</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Format de papier</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Source du papier</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Type de papier</translation>
    </message>
    <message>
        <source>Co&amp;llate</source>
        <translation>Assem&amp;bler</translation>
    </message>
    <message>
        <source>Choose a printer first.</source>
        <translation>Choisissez d’abord une imprimante.</translation>
    </message>
    <message>
        <source>Prints each copy whole before the next one.</source>
        <translation>Imprime chaque copie en entier avant la suivante.</translation>
    </message>
    <message>
        <source>Pages and ranges, parted by commas, such as 1-3,5,9-.</source>
        <translation>Pages et plages, séparées par des virgules, par exemple 1-3,5,9-.</translation>
    </message>
    <message>
        <source>not offered</source>
        <translation>non proposé</translation>
    </message>
    <message>
        <source>Copies must be a number from 1 to %1.</source>
        <translation>Le nombre de copies doit être compris entre 1 et %1.</translation>
    </message>
    <message>
        <source>Printed sides and ranges of them, parted by commas, such as 1-3,5,9-. With several pages on a side, sides are counted.</source>
        <translation>Faces imprimées et intervalles de faces, séparés par des virgules, par exemple 1-3,5,9-. Avec plusieurs pages par face, ce sont les faces qui comptent.</translation>
    </message>
    <message>
        <source>Side&amp;s:</source>
        <translation>Face&amp;s :</translation>
    </message>
</context>
<context>
    <name>host::ConflictLine</name>
    <message>
        <source>Resol&amp;ve…</source>
        <translation>Résou&amp;dre…</translation>
    </message>
    <message>
        <source>Can&apos;t be printed together: %1</source>
        <translation>Ne peuvent pas être combinés : %1</translation>
    </message>
    <message numerus="yes">
        <source>Can&apos;t be printed together: %1, and %n more</source>
        <translation>
            <numerusform>Ne peuvent pas être combinés : %1, et %n autre</numerusform>
            <numerusform>Ne peuvent pas être combinés : %1, et %n autres</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::JobPage</name>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Cancel &amp;Job</source>
        <translation>Annuler la &amp;tâche</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Annulation…</translation>
    </message>
    <message>
        <source>Sending “%1” to %2…</source>
        <translation>Envoi de « %1 » à %2…</translation>
    </message>
    <message>
        <source>The job %1 was sent.</source>
        <translation>La tâche %1 a été envoyée.</translation>
    </message>
    <message>
        <source>Waiting to be printed.</source>
        <translation>En attente d’impression.</translation>
    </message>
    <message>
        <source>Held until somebody releases it.</source>
        <translation>Retenue jusqu’à ce que quelqu’un la libère.</translation>
    </message>
    <message numerus="yes">
        <source>Printing: %n page(s) so far.</source>
        <translation>
            <numerusform>Impression en cours : %n page imprimée.</numerusform>
            <numerusform>Impression en cours : %n pages imprimées.</numerusform>
        </translation>
    </message>
    <message>
        <source>Printing.</source>
        <translation>Impression en cours.</translation>
    </message>
    <message>
        <source>Stopped: the printer can&apos;t go on.</source>
        <translation>Arrêtée : l’imprimante ne peut pas continuer.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Annulée.</translation>
    </message>
    <message>
        <source>The printer gave the job up.</source>
        <translation>L’imprimante a abandonné la tâche.</translation>
    </message>
    <message>
        <source>Printed.</source>
        <translation>Imprimée.</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>Écriture de « %1 »…</translation>
    </message>
    <message>
        <source>The file was written.</source>
        <translation>Le fichier a été écrit.</translation>
    </message>
    <message>
        <source>given up</source>
        <translation>abandonné</translation>
    </message>
    <message>
        <source>The server no longer knows the job; it is done.</source>
        <translation>Le serveur ne connaît plus la tâche ; elle est terminée.</translation>
    </message>
</context>
<context>
    <name>host::JobSender</name>
    <message>
        <source>The name or the password is wrong.</source>
        <translation>Le nom ou le mot de passe est incorrect.</translation>
    </message>
    <message>
        <source>the server wants to know who you are</source>
        <translation>le serveur demande qui vous êtes</translation>
    </message>
    <message>
        <source>the job was cancelled</source>
        <translation>la tâche a été annulée</translation>
    </message>
</context>
<context>
    <name>host::PresetBar</name>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>Pr&amp;éréglage :</translation>
    </message>
    <message>
        <source>Mana&amp;ge</source>
        <translation>&amp;Gérer</translation>
    </message>
    <message>
        <source>Manage presets</source>
        <translation>Gérer les préréglages</translation>
    </message>
    <message>
        <source>Printer&apos;s defaults</source>
        <translation>Réglages par défaut de l’imprimante</translation>
    </message>
    <message>
        <source>Last used settings</source>
        <translation>Derniers réglages utilisés</translation>
    </message>
    <message>
        <source>%1 (can&apos;t be used)</source>
        <translation>%1 (inutilisable)</translation>
    </message>
    <message>
        <source>%1 (set up outside of this window)</source>
        <translation>%1 (défini hors de cette fenêtre)</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modifié)</translation>
    </message>
    <message>
        <source>The settings differ from what was chosen here.</source>
        <translation>Les réglages diffèrent de ce qui a été choisi ici.</translation>
    </message>
    <message>
        <source>The settings stay as they are.</source>
        <translation>Les réglages restent tels quels.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be used, and the settings stay as they are.</source>
        <translation>« %1 » est inutilisable, et les réglages restent tels quels.</translation>
    </message>
    <message>
        <source>Not all of “%1” could be used:</source>
        <translation>Une partie de « %1 » n’a pas pu être utilisée :</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Renommer…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Supprimer…</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importer…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>E&amp;xporter…</translation>
    </message>
    <message>
        <source>There is a preset “%1” already. Replace it?</source>
        <translation>Il y a déjà un préréglage « %1 ». Le remplacer ?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Remplacer</translation>
    </message>
    <message>
        <source>Passwords aren&apos;t kept in presets. They have to be entered again each time.</source>
        <translation>Les mots de passe ne sont pas conservés dans les préréglages. Il faut les saisir à chaque fois.</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Enregistrer le préréglage</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Renommer le préréglage</translation>
    </message>
    <message>
        <source>There is a preset “%1” already. Nothing was renamed.</source>
        <translation>Il y a déjà un préréglage « %1 ». Rien n’a été renommé.</translation>
    </message>
    <message>
        <source>Delete the preset “%1”? The settings stay as they are.</source>
        <translation>Supprimer le préréglage « %1 » ? Les réglages restent tels quels.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>“%1” was made for the printer “%2”. What this printer has of it is used.</source>
        <translation>« %1 » a été créé pour l’imprimante « %2 ». Ce que cette imprimante en connaît est utilisé.</translation>
    </message>
    <message>
        <source>Import Preset</source>
        <translation>Importer un préréglage</translation>
    </message>
    <message>
        <source>Presets (*.json);;All Files (*)</source>
        <translation>Préréglages (*.json);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Export Preset</source>
        <translation>Exporter le préréglage</translation>
    </message>
    <message>
        <source>Presets (*.json)</source>
        <translation>Préréglages (*.json)</translation>
    </message>
</context>
<context>
    <name>host::PreviewView</name>
    <message>
        <source>Preview of the printed sheets. Arrow keys, Page Up and Page Down turn them.</source>
        <translation>Aperçu des feuilles imprimées. Les flèches, Page préc. et Page suiv. les tournent.</translation>
    </message>
    <message>
        <source>Previous side</source>
        <translation>Face précédente</translation>
    </message>
    <message>
        <source>Next side</source>
        <translation>Face suivante</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Feuille</translation>
    </message>
    <message>
        <source>Type the sheet to look at</source>
        <translation>Saisissez la feuille à regarder</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Aucun document</translation>
    </message>
    <message>
        <source>The preview can&apos;t be drawn: %1</source>
        <translation>L’aperçu ne peut pas être dessiné : %1</translation>
    </message>
    <message>
        <source>Preparing the preview…</source>
        <translation>Préparation de l’aperçu…</translation>
    </message>
    <message>
        <source>The document has none of the chosen pages.</source>
        <translation>Le document n’a aucune des pages choisies.</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Feuille %1 sur %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>Feuille %1 sur %2, verso</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>Feuille %1 sur %2, recto</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>page %1</translation>
    </message>
    <message>
        <source>pages %1</source>
        <translation>pages %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>sheet, pages</comment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>host::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Open a document</source>
        <translation>Ouvrir un document</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
    <message>
        <source>Getting the printer&apos;s settings…</source>
        <translation>Lecture des réglages de l’imprimante…</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Aucun document</translation>
    </message>
    <message>
        <source>The document can&apos;t be printed.</source>
        <translation>Le document ne peut pas être imprimé.</translation>
    </message>
    <message>
        <source>Document to Print</source>
        <translation>Document à imprimer</translation>
    </message>
    <message>
        <source>Documents (*.ps *.eps *.pdf);;All Files (*)</source>
        <translation>Documents (*.ps *.eps *.pdf);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>Imprimer dans un fichier</translation>
    </message>
    <message>
        <source>PostScript (*.ps)</source>
        <translation>PostScript (*.ps)</translation>
    </message>
    <message>
        <source>The document wasn&apos;t printed.</source>
        <translation>Le document n’a pas été imprimé.</translation>
    </message>
    <message>
        <source>The server has this printer no longer.</source>
        <translation>Le serveur n’a plus cette imprimante.</translation>
    </message>
    <message>
        <source>The job couldn&apos;t be cancelled on the server, and may still be printed.</source>
        <translation>La tâche n’a pas pu être annulée sur le serveur et sera peut-être encore imprimée.</translation>
    </message>
</context>
<context>
    <name>host::ProblemArea</name>
    <message>
        <source>Show &amp;All %1</source>
        <translation>To&amp;ut afficher (%1)</translation>
    </message>
</context>
<context>
    <name>host::QueueList</name>
    <message>
        <source>Re&amp;try</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>Find a printer</source>
        <translation>Chercher une imprimante</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Imprimantes</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Recherche d’imprimantes…</translation>
    </message>
    <message>
        <source>No printers found on this server.</source>
        <translation>Aucune imprimante sur ce serveur.</translation>
    </message>
    <message>
        <source>No printer has these words.</source>
        <translation>Aucune imprimante n’a ces mots.</translation>
    </message>
</context>
<context>
    <name>host::QueueModel</name>
    <message>
        <source>No longer on the server</source>
        <translation>N’est plus sur le serveur</translation>
    </message>
    <message>
        <source>Looking for it…</source>
        <translation>Recherche…</translation>
    </message>
    <message>
        <source>Default · %1</source>
        <extracomment>the default printer and its state</extracomment>
        <translation>Par défaut · %1</translation>
    </message>
    <message>
        <source>Makes a PostScript file</source>
        <translation>Crée un fichier PostScript</translation>
    </message>
    <message>
        <source>with %1</source>
        <translation>avec %1</translation>
    </message>
    <message>
        <source> · </source>
        <translation> · </translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>Imprimer dans un fichier</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Nothing is known of it</source>
        <translation>Rien n’est connu à son sujet</translation>
    </message>
</context>
<context>
    <name>host::RememberBox</name>
    <message>
        <source>&amp;Remember these settings for this printer</source>
        <translation>&amp;Mémoriser ces réglages pour cette imprimante</translation>
    </message>
    <message>
        <source>If not, they hold for this job only. Passwords aren&apos;t remembered.</source>
        <translation>Sinon, ils ne valent que pour cette tâche. Les mots de passe ne sont pas mémorisés.</translation>
    </message>
</context>
<context>
    <name>host::SentView</name>
    <message>
        <source>What will be sent</source>
        <translation>Ce qui sera envoyé</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Réglage</translation>
    </message>
    <message>
        <source>Printer&apos;s default</source>
        <translation>Défaut de l’imprimante</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>Choisi</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Envoyé</translation>
    </message>
    <message>
        <source>Show &amp;unchanged</source>
        <translation>Afficher les in&amp;changés</translation>
    </message>
    <message>
        <source>Nothing differs from the printer&apos;s defaults.</source>
        <translation>Rien ne diffère des réglages par défaut de l’imprimante.</translation>
    </message>
    <message>
        <source>%1 of %2 settings differ from the printer&apos;s defaults.</source>
        <translation>%1 réglages sur %2 diffèrent des réglages par défaut de l’imprimante.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>Differs from the printer&apos;s default</source>
        <translation>Diffère du réglage par défaut de l’imprimante</translation>
    </message>
</context>
<context>
    <name>host::SheetCanvas</name>
    <message>
        <source>Drawing page %1…</source>
        <translation>Dessin de la page %1…</translation>
    </message>
</context>
<context>
    <name>host::SummaryPage</name>
    <message>
        <source>What will be sent</source>
        <translation>Ce qui sera envoyé</translation>
    </message>
</context>
<context>
    <name>host::TypedOptions</name>
    <message>
        <source>%1:</source>
        <translation>%1 :</translation>
    </message>
</context>
</TS>
