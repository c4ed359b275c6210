<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Album</name>
    <message>
        <source>Unexpected Error : %1 %2</source>
        <translation>Erreur inattendue : %1 %2</translation>
    </message>
    <message>
        <source>Error %1 %2
%3</source>
        <translation>Erreur %1 %2
%3</translation>
    </message>
    <message>
        <source>If no album can be opened any more, please install the program&apos;s run-time support files again.</source>
        <translation>Si plus aucun album ne s&apos;ouvre, réinstallez les fichiers d&apos;exécution du programme.</translation>
    </message>
    <message>
        <source>The template &apos;%1&apos; cannot be read: %2</source>
        <translation>Impossible de lire le modèle « %1 » : %2</translation>
    </message>
    <message>
        <source>The album &apos;%1&apos; cannot be created: %2</source>
        <translation>Impossible de créer l&apos;album « %1 » : %2</translation>
    </message>
    <message>
        <source>The album is being written anew...</source>
        <translation>L&apos;album est en cours de réécriture...</translation>
    </message>
    <message>
        <source>The album is being opened...</source>
        <translation>L&apos;album est en cours d&apos;ouverture...</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Mot de passe incorrect</translation>
    </message>
    <message>
        <source>No album is open.</source>
        <translation>Aucun album n&apos;est ouvert.</translation>
    </message>
    <message>
        <source>The album&apos;s file could not be replaced: %1</source>
        <translation>Impossible de remplacer le fichier de l&apos;album : %1</translation>
    </message>
    <message>
        <source>This album is open in another window already:
%1</source>
        <translation>Cet album est déjà ouvert dans une autre fenêtre :
%1</translation>
    </message>
    <message>
        <source>Go to That Window</source>
        <translation>Aller à cette fenêtre</translation>
    </message>
    <message>
        <source>Open Here Too</source>
        <translation>Ouvrir ici aussi</translation>
    </message>
    <message>
        <source>This album can be read, but not changed: its file or its folder is read-only.</source>
        <translation>Cet album peut être lu, mais pas modifié : son fichier ou son dossier est en lecture seule.</translation>
    </message>
    <message>
        <source>The last change of this album&apos;s password was broken off. What it left beside the album has been removed.</source>
        <translation>Le dernier changement du mot de passe de cet album s&apos;est interrompu. Ce qu&apos;il avait laissé à côté de l&apos;album a été supprimé.</translation>
    </message>
    <message>
        <source>Please give the password for : %1</source>
        <translation>Mot de passe de l&apos;album : %1</translation>
    </message>
    <message>
        <source>Earlier states of this album are kept, the newest of %1. Do you want to see them?</source>
        <translation>Des états antérieurs de cet album sont gardés, le plus récent du %1. Voulez-vous les voir ?</translation>
    </message>
    <message>
        <source>%1 as it was on %2</source>
        <translation>%1 tel qu&apos;il était le %2</translation>
    </message>
    <message>
        <source>This is an earlier state of an album: it can be read, but not changed.</source>
        <translation>Ceci est un état antérieur d&apos;un album : on peut le lire, mais pas le modifier.</translation>
    </message>
</context>
<context>
    <name>AlbumOpener</name>
    <message>
        <source>My Album.alb</source>
        <translation>Mon album.alb</translation>
    </message>
    <message>
        <source>My Album %1.alb</source>
        <translation>Mon album %1.alb</translation>
    </message>
    <message>
        <source>Open Album</source>
        <translation>Ouvrir un album</translation>
    </message>
    <message>
        <source>Album|*.alb</source>
        <translation>Album|*.alb</translation>
    </message>
    <message>
        <source>Create a new Album</source>
        <translation>Créer un nouvel album</translation>
    </message>
    <message>
        <source>The sample story is being copied...</source>
        <translation>L&apos;histoire d&apos;exemple est en cours de copie...</translation>
    </message>
    <message>
        <source>Earlier states of it are kept. Do you want to see them?</source>
        <translation>Des états antérieurs en sont gardés. Voulez-vous les voir ?</translation>
    </message>
</context>
<context>
    <name>AlbumPassword</name>
    <message>
        <source>Please enter the new password</source>
        <translation>Saisissez le nouveau mot de passe</translation>
    </message>
    <message>
        <source>Please enter the new password once more</source>
        <translation>Saisissez de nouveau le nouveau mot de passe</translation>
    </message>
    <message>
        <source>The two passwords differ</source>
        <translation>Les deux mots de passe sont différents</translation>
    </message>
    <message>
        <source>The album has no password any more.</source>
        <translation>L&apos;album n&apos;a plus de mot de passe.</translation>
    </message>
    <message>
        <source>The album has its new password. Without it nobody can open the album, so keep it well.</source>
        <translation>L&apos;album a son nouveau mot de passe. Sans lui, personne ne peut ouvrir l&apos;album : gardez-le bien.</translation>
    </message>
    <message>
        <source>This album has a password. Do you want to remove it or to change it?</source>
        <translation>Cet album a un mot de passe. Voulez-vous le supprimer ou le changer&#xa0;?</translation>
    </message>
    <message>
        <source>Remove Password</source>
        <translation>Supprimer le mot de passe</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Changer le mot de passe</translation>
    </message>
    <message numerus="yes">
        <source>%n earlier state(s) of this album have no password: whoever gets at your files can read what the album held then. Shall they be deleted?</source>
        <translation>
            <numerusform>%n état antérieur de cet album n&apos;a pas de mot de passe : qui accède à vos fichiers peut lire ce que l&apos;album contenait alors. Faut-il le supprimer ?</numerusform>
            <numerusform>%n états antérieurs de cet album n&apos;ont pas de mot de passe : qui accède à vos fichiers peut lire ce que l&apos;album contenait alors. Faut-il les supprimer ?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them could not be deleted.</source>
        <translation>
            <numerusform>%n d&apos;entre eux n&apos;a pas pu être supprimé.</numerusform>
            <numerusform>%n d&apos;entre eux n&apos;ont pas pu être supprimés.</numerusform>
        </translation>
    </message>
    <message>
        <source>What you have done up to now cannot be undone any more after that.</source>
        <translation>Ce que vous avez fait jusqu&apos;ici ne pourra plus être annulé ensuite.</translation>
    </message>
</context>
<context>
    <name>AlbumRewriting</name>
    <message>
        <source>Chapter &quot;%1&quot;, paragraph %2: the file pattern cannot go along, so its pictures are linked by hand in the copy.</source>
        <translation>Chapitre « %1 », paragraphe %2 : le modèle de fichiers ne peut pas être emporté ; ses photos sont donc liées à la main dans la copie.</translation>
    </message>
    <message>
        <source>Chapter &quot;%1&quot;, paragraph %2: it shows other pictures in the copy.</source>
        <translation>Chapitre « %1 », paragraphe %2 : il montre d&apos;autres photos dans la copie.</translation>
    </message>
</context>
<context>
    <name>AlbumStatus</name>
    <message numerus="yes">
        <source>%Ln picture(s)</source>
        <translation>
            <numerusform>%Ln photo</numerusform>
            <numerusform>%Ln photos</numerusform>
        </translation>
    </message>
    <message>
        <source>all indexed</source>
        <translation>toutes indexées</translation>
    </message>
    <message numerus="yes">
        <source>%Ln not indexed</source>
        <translation>
            <numerusform>%Ln non indexée</numerusform>
            <numerusform>%Ln non indexées</numerusform>
        </translation>
    </message>
    <message>
        <source>no file missing</source>
        <translation>aucun fichier manquant</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) missing</source>
        <translation>
            <numerusform>%Ln fichier manquant</numerusform>
            <numerusform>%Ln fichiers manquants</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Autoview</name>
    <message>
        <source>Please enter delay in seconds : </source>
        <translation>Durée d&apos;affichage en secondes : </translation>
    </message>
    <message>
        <source>Autoview Mode</source>
        <translation>Défilement automatique</translation>
    </message>
</context>
<context>
    <name>BookCheck</name>
    <message>
        <source>The book was not written whole (%1).</source>
        <translation>Le livre n&apos;a pas été écrit en entier (%1).</translation>
    </message>
</context>
<context>
    <name>BookContents</name>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
</context>
<context>
    <name>BookLayout</name>
    <message>
        <source>This story has no chapters.</source>
        <translation>Ce récit n&apos;a pas de chapitres.</translation>
    </message>
</context>
<context>
    <name>BookScreen</name>
    <message>
        <source>This picture is missing.</source>
        <translation>Cette photo manque.</translation>
    </message>
    <message>
        <source>This picture cannot be read.</source>
        <translation>Cette photo ne peut être lue.</translation>
    </message>
</context>
<context>
    <name>ChangeText</name>
    <message>
        <source>Nothing changes.</source>
        <translation>Rien ne change.</translation>
    </message>
    <message numerus="yes">
        <source>%n legend(s)</source>
        <translation>
            <numerusform>%n légende</numerusform>
            <numerusform>%n légendes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: %n value(s)</source>
        <translation>
            <numerusform>%1 : %n valeur</numerusform>
            <numerusform>%1 : %n valeurs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) change: %1.</source>
        <translation>
            <numerusform>%n photo change : %1.</numerusform>
            <numerusform>%n photos changent : %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new value(s): %1</source>
        <translation>
            <numerusform>%n nouvelle valeur : %1</numerusform>
            <numerusform>%n nouvelles valeurs : %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) changed.</source>
        <translation>
            <numerusform>%n photo changée.</numerusform>
            <numerusform>%n photos changées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) were changed elsewhere meanwhile; that stays.</source>
        <translation>
            <numerusform>%n photo a été changée ailleurs entre-temps ; cela reste.</numerusform>
            <numerusform>%n photos ont été changées ailleurs entre-temps ; cela reste.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ChapterChain</name>
    <message>
        <source>(no name)</source>
        <translation>(sans nom)</translation>
    </message>
    <message>
        <source>(no name %1)</source>
        <translation>(sans nom %1)</translation>
    </message>
</context>
<context>
    <name>ChapterList</name>
    <message>
        <source>Chapter Names must begin with a letter or a figure</source>
        <translation>Le nom d&apos;un chapitre doit commencer par une lettre ou un chiffre</translation>
    </message>
    <message>
        <source>This chapter exists already</source>
        <translation>Ce chapitre existe déjà</translation>
    </message>
    <message>
        <source>Please Enter Chapter Name</source>
        <translation>Saisissez le nom du chapitre</translation>
    </message>
    <message>
        <source>Enter new name for chapter &apos;%1&apos;</source>
        <translation>Saisissez le nouveau nom du chapitre &apos;%1&apos;</translation>
    </message>
    <message>
        <source>This chapter is no longer in the album.</source>
        <translation>Ce chapitre n&apos;est plus dans l&apos;album.</translation>
    </message>
    <message>
        <source>This chapter contains paragraphs and can&apos;t be deleted</source>
        <translation>Ce chapitre contient des paragraphes et ne peut pas être supprimé</translation>
    </message>
    <message numerus="yes">
        <source>%Ln paragraph(s)</source>
        <translation>
            <numerusform>%Ln paragraphe</numerusform>
            <numerusform>%Ln paragraphes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Check</name>
    <message>
        <source>Tell what is wrong with the album, without windows; nothing is changed. The exit status is 0 when it is in order, 1 when it cannot be opened or its file is damaged, 3 when something else was found.</source>
        <translation>Dire ce qui ne va pas dans l&apos;album, sans fenêtres ; rien n&apos;est modifié. Le code de sortie est 0 quand il est en ordre, 1 quand il ne peut être ouvert ou que son fichier est endommagé, 3 quand autre chose a été trouvé.</translation>
    </message>
    <message>
        <source>The album.</source>
        <translation>L&apos;album.</translation>
    </message>
    <message>
        <source>--check takes one album</source>
        <translation>--check prend un album</translation>
    </message>
    <message>
        <source>usage: lumenark --check ALBUM [--password-file FILE]</source>
        <translation>utilisation : lumenark --check ALBUM [--password-file FILE]</translation>
    </message>
</context>
<context>
    <name>CheckReport</name>
    <message>
        <source>The album&apos;s file is damaged.</source>
        <translation>Le fichier de l&apos;album est endommagé.</translation>
    </message>
    <message>
        <source>Take back an earlier state of it (Tools &gt; Earlier States).</source>
        <translation>Reprenez-en un état antérieur (Outils &gt; États antérieurs).</translation>
    </message>
    <message>
        <source>Chapters or paragraphs do not hang together as they should.</source>
        <translation>Des chapitres ou des paragraphes ne se tiennent pas comme il faut.</translation>
    </message>
    <message>
        <source>Tools &gt; Repair Album mends that. It would change this:</source>
        <translation>Outils &gt; Réparer l&apos;album y remédie. Voici ce qui changerait :</translation>
    </message>
    <message numerus="yes">
        <source>%n link(s) to pictures belong to paragraphs that are gone.</source>
        <translation>
            <numerusform>%n lien vers une photo appartient à un paragraphe qui n&apos;est plus là.</numerusform>
            <numerusform>%n liens vers des photos appartiennent à des paragraphes qui ne sont plus là.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing shows them, and nothing has to be done.</source>
        <translation>Rien ne les montre, et il n&apos;y a rien à faire.</translation>
    </message>
    <message numerus="yes">
        <source>Paragraphs are linked with %n picture(s) that the album does not hold.</source>
        <translation>
            <numerusform>Des paragraphes sont liés à %n photo que l&apos;album ne contient pas.</numerusform>
            <numerusform>Des paragraphes sont liés à %n photos que l&apos;album ne contient pas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Load these pictures (Pictures &gt; Load Picture Files in Album), or take the links out in the paragraph&apos;s Linked Pictures.</source>
        <translation>Chargez ces photos (Photos &gt; Charger des fichiers de photos dans l&apos;album), ou enlevez les liens dans les photos liées du paragraphe.</translation>
    </message>
    <message numerus="yes">
        <source>Pictures have %n value(s) that the tables do not list.</source>
        <translation>
            <numerusform>Des photos ont %n valeur que les tables ne contiennent pas.</numerusform>
            <numerusform>Des photos ont %n valeurs que les tables ne contiennent pas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Add them in Options &gt; Edit Tables if you want them to be offered.</source>
        <translation>Ajoutez-les dans Options &gt; Modifier les tables si vous voulez qu&apos;elles soient proposées.</translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) are in the album more than once.</source>
        <translation>
            <numerusform>%n photo est plus d&apos;une fois dans l&apos;album.</numerusform>
            <numerusform>%n photos sont plus d&apos;une fois dans l&apos;album.</numerusform>
        </translation>
    </message>
    <message>
        <source>They may be shown twice; that does no harm.</source>
        <translation>Elles peuvent être montrées deux fois ; cela ne fait pas de mal.</translation>
    </message>
    <message numerus="yes">
        <source>The files of %n picture(s) are not where they were.</source>
        <translation>
            <numerusform>Le fichier de %n photo n&apos;est plus à sa place.</numerusform>
            <numerusform>Les fichiers de %n photos ne sont plus à leur place.</numerusform>
        </translation>
    </message>
    <message>
        <source>The check was stopped before its end.</source>
        <translation>La vérification a été arrêtée avant la fin.</translation>
    </message>
    <message>
        <source>The album is in order.</source>
        <translation>L&apos;album est en ordre.</translation>
    </message>
    <message>
        <source>Plug in the disk, or look for them where they are now (Pictures &gt; Missing Pictures).</source>
        <translation>Branchez le disque, ou cherchez-les là où elles sont à présent (Photos &gt; Photos manquantes).</translation>
    </message>
</context>
<context>
    <name>ColumnTitles</name>
    <message>
        <source>Caracteristic %1</source>
        <translation>Caractéristique %1</translation>
    </message>
    <message>
        <source>Caracteristic %1 / %2</source>
        <translation>Caractéristique %1 / %2</translation>
    </message>
</context>
<context>
    <name>Convert</name>
    <message>
        <source>It has a password; give the file that holds it with --%1.</source>
        <translation>Il a un mot de passe ; indiquez avec --%1 le fichier qui le contient.</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>Le mot de passe est faux.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Ce fichier n&apos;existe pas.</translation>
    </message>
    <message>
        <source>It is not a file that can be opened.</source>
        <translation>Ce n&apos;est pas un fichier qui puisse être ouvert.</translation>
    </message>
    <message>
        <source>It is not an album of the former file format.</source>
        <translation>Ce n&apos;est pas un album à l&apos;ancien format de fichier.</translation>
    </message>
    <message>
        <source>Make the new album NEW of the album OLD of the former file format, without windows. The exit status is 0 when everything came over, 3 when the new album lacks something, 1 when none was made.</source>
        <translation>Faire de l&apos;album OLD, à l&apos;ancien format de fichier, le nouvel album NEW, sans fenêtre. Le code de sortie est 0 quand tout a été repris, 3 quand il manque quelque chose au nouvel album, 1 quand aucun n&apos;a été fait.</translation>
    </message>
    <message>
        <source>With --convert: the first line of FILE is the old album&apos;s password. The new one gets it too.</source>
        <translation>Avec --convert : la première ligne de FILE est le mot de passe de l&apos;ancien album. Le nouveau le reçoit aussi.</translation>
    </message>
    <message>
        <source>With --convert: replace NEW where it exists.</source>
        <translation>Avec --convert : remplacer NEW s&apos;il existe.</translation>
    </message>
    <message>
        <source>The old album; it stays as it is.</source>
        <translation>L&apos;ancien album ; il reste tel quel.</translation>
    </message>
    <message>
        <source>The new album.</source>
        <translation>Le nouvel album.</translation>
    </message>
    <message>
        <source>lumenark: --convert takes the old album and the new one</source>
        <translation>lumenark : --convert demande l&apos;ancien album et le nouveau</translation>
    </message>
    <message>
        <source>usage: lumenark --convert OLD NEW [--password-file FILE] [--force]</source>
        <translation>utilisation : lumenark --convert OLD NEW [--password-file FILE] [--force]</translation>
    </message>
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>Contact sheet</source>
        <translation>Planche-contact</translation>
    </message>
</context>
<context>
    <name>DatabaseError</name>
    <message>
        <source>The file &apos;%1&apos; does not exist.</source>
        <translation>Le fichier « %1 » n&apos;existe pas.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a file that can be opened.</source>
        <translation>« %1 » n&apos;est pas un fichier qui puisse être ouvert.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is an empty file.</source>
        <translation>« %1 » est un fichier vide.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is an album of the former file format.</source>
        <translation>« %1 » est un album à l&apos;ancien format de fichier.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is damaged or not an album.</source>
        <translation>« %1 » est endommagé ou n&apos;est pas un album.</translation>
    </message>
    <message>
        <source>The password is wrong or missing.</source>
        <translation>Le mot de passe est faux ou manque.</translation>
    </message>
    <message>
        <source>The album file is damaged: its end is missing.</source>
        <translation>Le fichier de l&apos;album est endommagé : la fin manque.</translation>
    </message>
    <message>
        <source>The album could not be written anew.</source>
        <translation>L&apos;album n&apos;a pas pu être réécrit.</translation>
    </message>
    <message>
        <source>A part of the pattern is too long in filter &apos;%1&apos;.</source>
        <translation>Une partie du modèle est trop longue dans le filtre « %1 ».</translation>
    </message>
    <message>
        <source>Invalid pattern in filter &apos;%1&apos;.</source>
        <translation>Modèle incorrect dans le filtre « %1 ».</translation>
    </message>
    <message>
        <source>Unknown field &apos;%1&apos; in filter &apos;%2&apos;.</source>
        <translation>Champ « %1 » inconnu dans le filtre « %2 ».</translation>
    </message>
    <message>
        <source>Field &apos;%1&apos; is compared with a value of another type in &apos;%2&apos;.</source>
        <translation>Le champ « %1 » est comparé à une valeur d&apos;un autre type dans « %2 ».</translation>
    </message>
    <message>
        <source>Syntax error in filter &apos;%1&apos; at &apos;%2&apos;.</source>
        <translation>Erreur de syntaxe dans le filtre « %1 », à « %2 ».</translation>
    </message>
    <message>
        <source>The filter is too long: &apos;%1&apos;</source>
        <translation>Le filtre est trop long : « %1 »</translation>
    </message>
    <message>
        <source>There is no current record.</source>
        <translation>Il n&apos;y a pas d&apos;enregistrement courant.</translation>
    </message>
    <message>
        <source>There is no field &apos;%1&apos;.</source>
        <translation>Il n&apos;y a pas de champ « %1 ».</translation>
    </message>
    <message>
        <source>The record has been deleted.</source>
        <translation>L&apos;enregistrement a été supprimé.</translation>
    </message>
    <message>
        <source>A field that holds nothing was read as a text.</source>
        <translation>Un champ vide a été lu comme un texte.</translation>
    </message>
    <message>
        <source>A field that holds nothing was read as a number.</source>
        <translation>Un champ vide a été lu comme un nombre.</translation>
    </message>
    <message>
        <source>A field that holds a text was read as a number.</source>
        <translation>Un champ de texte a été lu comme un nombre.</translation>
    </message>
    <message>
        <source>The album holds a number that is too large.</source>
        <translation>L&apos;album contient un nombre trop grand.</translation>
    </message>
    <message>
        <source>The album has used up its identifiers.</source>
        <translation>L&apos;album n&apos;a plus d&apos;identifiant libre.</translation>
    </message>
    <message>
        <source>A record was changed without editing it.</source>
        <translation>Un enregistrement a été modifié hors édition.</translation>
    </message>
    <message>
        <source>A field was given a value of another type.</source>
        <translation>Un champ a reçu une valeur d&apos;un autre type.</translation>
    </message>
    <message>
        <source>This file is not an album: it holds &apos;%1&apos;, which no album has.</source>
        <translation>Ce fichier n&apos;est pas un album : il contient « %1 », qu&apos;aucun album ne contient.</translation>
    </message>
    <message>
        <source>The album file is damaged.</source>
        <translation>Le fichier de l&apos;album est endommagé.</translation>
    </message>
    <message>
        <source>This file is not an album.</source>
        <translation>Ce fichier n&apos;est pas un album.</translation>
    </message>
    <message>
        <source>The album holds such an entry already.</source>
        <translation>L&apos;album contient déjà cette entrée.</translation>
    </message>
    <message>
        <source>The disk is full; the last change was not made.</source>
        <translation>Le disque est plein ; la dernière modification n&apos;a pas été faite.</translation>
    </message>
    <message>
        <source>The album cannot be changed: its file or its folder is read-only.</source>
        <translation>L&apos;album ne peut pas être modifié : son fichier ou son dossier est en lecture seule.</translation>
    </message>
    <message>
        <source>The album is being changed by another program. Please try again.</source>
        <translation>Un autre programme est en train de modifier l&apos;album. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>The album file or a file beside it cannot be opened.</source>
        <translation>Le fichier de l&apos;album, ou un fichier voisin, ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>The album file cannot be read or written: disk or network error.</source>
        <translation>Le fichier de l&apos;album ne peut être ni lu ni écrit : erreur du disque ou du réseau.</translation>
    </message>
    <message>
        <source>A value or a query is too large.</source>
        <translation>Une valeur ou une requête est trop grande.</translation>
    </message>
    <message>
        <source>The album holds a value of a wrong type.</source>
        <translation>L&apos;album contient une valeur d&apos;un type inattendu.</translation>
    </message>
    <message>
        <source>The album has no table &apos;%1&apos;.</source>
        <translation>L&apos;album n&apos;a pas de table « %1 ».</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos; has too many fields.</source>
        <translation>La table « %1 » a trop de champs.</translation>
    </message>
    <message>
        <source>The album &apos;%1&apos; cannot be read: its list of tables is damaged.</source>
        <translation>L&apos;album « %1 » ne peut pas être lu : sa liste de tables est endommagée.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; looks like an album of the former file format, but is damaged or was written by a version that is not known.</source>
        <translation>« %1 » ressemble à un album à l&apos;ancien format de fichier, mais il est endommagé ou vient d&apos;une version inconnue.</translation>
    </message>
    <message>
        <source>The album&apos;s file was moved, renamed or replaced while it was open. Please open the album again.</source>
        <translation>Le fichier de l&apos;album a été déplacé, renommé ou remplacé pendant qu&apos;il était ouvert. Veuillez rouvrir l&apos;album.</translation>
    </message>
    <message>
        <source>A change of &apos;%1&apos; broke off and must be undone first, but the file or its folder is read-only.</source>
        <translation>Une modification de « %1 » s&apos;est interrompue et doit d&apos;abord être annulée, mais le fichier ou son dossier est en lecture seule.</translation>
    </message>
    <message>
        <source>what was written reads differently.</source>
        <translation>ce qui a été écrit se relit différemment.</translation>
    </message>
    <message>
        <source>the album&apos;s own file cannot be read.</source>
        <translation>le fichier de l&apos;album lui-même est illisible.</translation>
    </message>
    <message>
        <source>The album cannot be copied: %1</source>
        <translation>Impossible de copier l&apos;album : %1</translation>
    </message>
    <message>
        <source>A part of the program cannot be started: %1: %2</source>
        <translation>Une partie du programme ne démarre pas : %1 : %2</translation>
    </message>
    <message>
        <source>A part of the program does not work: %1</source>
        <translation>Une partie du programme ne fonctionne pas : %1</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; cannot be made.</source>
        <translation>Impossible de créer le dossier &apos;%1&apos;.</translation>
    </message>
</context>
<context>
    <name>DescriptionCsv</name>
    <message>
        <source>The table &apos;%1&apos; cannot be read: %2</source>
        <translation>Le tableau « %1 » est illisible : %2</translation>
    </message>
    <message>
        <source>The table &apos;%1&apos; is too large.</source>
        <translation>Le tableau « %1 » est trop grand.</translation>
    </message>
    <message>
        <source>The table &apos;%1&apos; cannot be written: %2</source>
        <translation>Le tableau « %1 » ne peut pas être écrit : %2</translation>
    </message>
    <message>
        <source>The table &apos;%1&apos; has no column &quot;File&quot;, so it fits no pictures.</source>
        <translation>Le tableau « %1 » n&apos;a pas de colonne « File » : il ne correspond à aucune photo.</translation>
    </message>
    <message>
        <source>The table &apos;%1&apos; ends inside the quotes of the row that begins on line %2. Nothing was taken from it.</source>
        <translation>Le tableau « %1 » se termine entre les guillemets de la ligne qui commence à la ligne %2. Rien n&apos;en a été pris.</translation>
    </message>
    <message>
        <source>It is an album. Choose another name.</source>
        <translation>C&apos;est un album. Choisissez un autre nom.</translation>
    </message>
</context>
<context>
    <name>Descriptions</name>
    <message>
        <source>There is no such file.</source>
        <translation>Ce fichier n&apos;existe pas.</translation>
    </message>
    <message>
        <source>It is an album of the former file format; make a new one of it first, with --convert.</source>
        <translation>C&apos;est un album de l&apos;ancien format ; faites-en d&apos;abord un nouveau avec --convert.</translation>
    </message>
    <message>
        <source>It has a password; give the file that holds it with --%1.</source>
        <translation>Il a un mot de passe ; indiquez avec --%1 le fichier qui le contient.</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>Le mot de passe est faux.</translation>
    </message>
    <message numerus="yes">
        <source>%n sidecar(s) written.</source>
        <translation>
            <numerusform>%n fichier XMP écrit.</numerusform>
            <numerusform>%n fichiers XMP écrits.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) written.</source>
        <translation>
            <numerusform>%n photo écrite.</numerusform>
            <numerusform>%n photos écrites.</numerusform>
        </translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; fits none of the album.</source>
        <translation>La colonne « %1 » ne correspond à aucune de l&apos;album.</translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) are described so already.</source>
        <translation>
            <numerusform>%n photo est déjà décrite ainsi.</numerusform>
            <numerusform>%n photos sont déjà décrites ainsi.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) differ.</source>
        <translation>
            <numerusform>%n photo diffère.</numerusform>
            <numerusform>%n photos diffèrent.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n legend(s)</source>
        <translation>
            <numerusform>%n légende</numerusform>
            <numerusform>%n légendes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: %n value(s)</source>
        <translation>
            <numerusform>%1 : %n valeur</numerusform>
            <numerusform>%1 : %n valeurs</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: new value &quot;%2&quot;</source>
        <translation>%1 : nouvelle valeur « %2 »</translation>
    </message>
    <message>
        <source>The album does not hold this picture.</source>
        <translation>L&apos;album ne contient pas cette photo.</translation>
    </message>
    <message>
        <source>It comes a second time, which does not count.</source>
        <translation>Elle vient une deuxième fois, ce qui ne compte pas.</translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) changed.</source>
        <translation>
            <numerusform>%n photo changée.</numerusform>
            <numerusform>%n photos changées.</numerusform>
        </translation>
    </message>
    <message>
        <source>Write the legends and characteristics of the album&apos;s pictures, with --to or --sidecars, without windows.</source>
        <translation>Écrit les légendes et les caractéristiques des photos de l&apos;album, avec --to ou --sidecars, sans fenêtre.</translation>
    </message>
    <message>
        <source>Take legends and characteristics into the album, with --from or --sidecars, without windows. Only what differs is changed. The exit status is 3 when something was left out.</source>
        <translation>Reprend des légendes et des caractéristiques dans l&apos;album, avec --from ou --sidecars, sans fenêtre. Seul ce qui diffère est changé. Le code de sortie est 3 quand quelque chose est resté de côté.</translation>
    </message>
    <message>
        <source>The table to write, as CSV.</source>
        <translation>Le tableau à écrire, en CSV.</translation>
    </message>
    <message>
        <source>The table to read, as CSV.</source>
        <translation>Le tableau à lire, en CSV.</translation>
    </message>
    <message>
        <source>XMP files beside the pictures instead of a table.</source>
        <translation>Des fichiers XMP à côté des photos au lieu d&apos;un tableau.</translation>
    </message>
    <message>
        <source>With --import-descriptions: only say what would change.</source>
        <translation>Avec --import-descriptions : dit seulement ce qui changerait.</translation>
    </message>
    <message>
        <source>The first line of FILE is the album&apos;s password.</source>
        <translation>La première ligne de FILE est le mot de passe de l&apos;album.</translation>
    </message>
    <message>
        <source>Replace a table that exists.</source>
        <translation>Remplace un tableau qui existe.</translation>
    </message>
    <message>
        <source>The album.</source>
        <translation>L&apos;album.</translation>
    </message>
    <message>
        <source>descriptions need an album and one place</source>
        <translation>il faut un album et un seul lieu pour les descriptions</translation>
    </message>
    <message>
        <source>usage: lumenark --export-descriptions ALBUM --to FILE|--sidecars [--password-file FILE] [--force]
       lumenark --import-descriptions ALBUM --from FILE|--sidecars [--password-file FILE] [--dry-run]</source>
        <translation>usage : lumenark --export-descriptions ALBUM --to FILE|--sidecars [--password-file FILE] [--force]
        lumenark --import-descriptions ALBUM --from FILE|--sidecars [--password-file FILE] [--dry-run]</translation>
    </message>
</context>
<context>
    <name>DescriptionSidecars</name>
    <message>
        <source>%1: The picture is not there.</source>
        <translation>%1 : La photo n&apos;est pas là.</translation>
    </message>
</context>
<context>
    <name>DescriptionTransfer</name>
    <message numerus="yes">
        <source>and %n other(s)</source>
        <translation>
            <numerusform>et %n autre</numerusform>
            <numerusform>et %n autres</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The descriptions of %n picture(s) were written.</source>
        <translation>
            <numerusform>La description de %n photo a été écrite.</numerusform>
            <numerusform>Les descriptions de %n photos ont été écrites.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Write an XMP file beside each of %n picture(s)? What other programs have written into such files stays.</source>
        <translation>
            <numerusform>Écrire un fichier XMP à côté de la photo (%n photo) ? Ce que d&apos;autres programmes ont écrit dans un tel fichier reste.</numerusform>
            <numerusform>Écrire un fichier XMP à côté de chacune des %n photos ? Ce que d&apos;autres programmes ont écrit dans de tels fichiers reste.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) are described so already.</source>
        <translation>
            <numerusform>%n photo est déjà décrite ainsi.</numerusform>
            <numerusform>%n photos sont déjà décrites ainsi.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) are not in the album.</source>
        <translation>
            <numerusform>%n photo n&apos;est pas dans l&apos;album.</numerusform>
            <numerusform>%n photos ne sont pas dans l&apos;album.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) come a second time, which does not count.</source>
        <translation>
            <numerusform>%n photo revient une seconde fois, ce qui ne compte pas.</numerusform>
            <numerusform>%n photos reviennent une seconde fois, ce qui ne compte pas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Table|*.csv</source>
        <translation>Table|*.csv</translation>
    </message>
    <message>
        <source>Export Descriptions</source>
        <translation>Exporter les descriptions</translation>
    </message>
    <message>
        <source>You stopped before the end.</source>
        <translation>Vous avez arrêté avant la fin.</translation>
    </message>
    <message>
        <source>Import Descriptions</source>
        <translation>Importer des descriptions</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; fits none of the album.</source>
        <translation>La colonne « %1 » ne correspond à aucune de l&apos;album.</translation>
    </message>
    <message>
        <source>Change the album ?</source>
        <translation>Modifier l&apos;album ?</translation>
    </message>
    <message>
        <source>You stopped it, and nothing was changed.</source>
        <translation>Vous l&apos;avez arrêté, et rien n&apos;a été changé.</translation>
    </message>
</context>
<context>
    <name>DroppedFiles</name>
    <message numerus="yes">
        <source>%n file(s) left out: their names are not valid text</source>
        <translation>
            <numerusform>%n fichier laissé de côté : son nom n&amp;apos;est pas du texte valide</numerusform>
            <numerusform>%n fichiers laissés de côté : leurs noms ne sont pas du texte valide</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) left out: no pictures</source>
        <translation>
            <numerusform>%n fichier laissé de côté : pas une photo</numerusform>
            <numerusform>%n fichiers laissés de côté : pas des photos</numerusform>
        </translation>
    </message>
    <message>
        <source>Load the pictures of the folders inside, too ?</source>
        <translation>Charger aussi les photos des dossiers contenus ?</translation>
    </message>
    <message>
        <source>The pictures in the folders are being looked for...</source>
        <translation>Recherche des photos dans les dossiers...</translation>
    </message>
</context>
<context>
    <name>DroppedPictures</name>
    <message>
        <source>There is no picture among these files.</source>
        <translation>Il n&apos;y a pas de photo parmi ces fichiers.</translation>
    </message>
</context>
<context>
    <name>EarlierStates</name>
    <message>
        <source>The state of the album cannot be kept: %1</source>
        <translation>Impossible de garder l&apos;état de l&apos;album : %1</translation>
    </message>
    <message>
        <source>There is no room for it on the disk.</source>
        <translation>Il n&apos;y a plus de place sur le disque.</translation>
    </message>
    <message>
        <source>The album is damaged, so today&apos;s state of it is not kept among the earlier ones.
%1</source>
        <translation>L&apos;album est endommagé ; son état d&apos;aujourd&apos;hui n&apos;est donc pas gardé parmi les états antérieurs.
%1</translation>
    </message>
    <message>
        <source>Today&apos;s state of the album could not be kept.
%1</source>
        <translation>L&apos;état d&apos;aujourd&apos;hui de l&apos;album n&apos;a pas pu être gardé.
%1</translation>
    </message>
    <message>
        <source>The file&apos;s contents do not fit together.</source>
        <translation>Le contenu du fichier n&apos;est pas cohérent.</translation>
    </message>
    <message numerus="yes">
        <source>Before the first change of each day the album is kept as it was, among its earlier states. This one is so large that it will take about %n second(s) each time. Shall its states be kept?</source>
        <translation>
            <numerusform>Avant la première modification de chaque jour, l&apos;album est gardé tel qu&apos;il était, parmi ses états antérieurs. Celui-ci est si grand que cela prendra environ %n seconde à chaque fois. Faut-il garder ses états ?</numerusform>
            <numerusform>Avant la première modification de chaque jour, l&apos;album est gardé tel qu&apos;il était, parmi ses états antérieurs. Celui-ci est si grand que cela prendra environ %n secondes à chaque fois. Faut-il garder ses états ?</numerusform>
        </translation>
    </message>
    <message>
        <source>The state cannot be taken back: %1</source>
        <translation>Impossible de reprendre cet état : %1</translation>
    </message>
    <message>
        <source>Please give the password that the album had on %1</source>
        <translation>Veuillez donner le mot de passe que l&apos;album avait le %1</translation>
    </message>
</context>
<context>
    <name>EditConflict</name>
    <message>
        <source>(nothing)</source>
        <translation>(rien)</translation>
    </message>
    <message>
        <source>%1 was changed in another window after it was opened here.

The other version:
%2

Your version:
%3</source>
        <translation>%1 : modification dans une autre fenêtre après l&apos;ouverture ici.

L&apos;autre version :
%2

Votre version :
%3</translation>
    </message>
    <message>
        <source>Keep Mine</source>
        <translation>Garder la mienne</translation>
    </message>
    <message>
        <source>Take the Other</source>
        <translation>Prendre l&apos;autre</translation>
    </message>
</context>
<context>
    <name>EditorKey</name>
    <message>
        <source>New paragraph after this one</source>
        <translation>Nouveau paragraphe après celui-ci</translation>
    </message>
    <message>
        <source>Full screen, and back</source>
        <translation>Plein écran, et retour</translation>
    </message>
    <message>
        <source>Save and leave</source>
        <translation>Enregistrer et quitter</translation>
    </message>
    <message>
        <source>Save and leave, outside the text</source>
        <translation>Enregistrer et quitter, hors du texte</translation>
    </message>
    <message>
        <source>Find pictures, and link them</source>
        <translation>Chercher des photos et les lier</translation>
    </message>
    <message>
        <source>Paragraph editor</source>
        <translation>Éditeur de paragraphes</translation>
    </message>
    <message>
        <source>This sheet of keys, outside the text</source>
        <translation>Cette liste des touches, hors du texte</translation>
    </message>
    <message>
        <source>The linked pictures, and their order</source>
        <translation>Les photos liées, et leur ordre</translation>
    </message>
</context>
<context>
    <name>FileDrop</name>
    <message>
        <source>Please drop one album at a time.</source>
        <translation>Veuillez déposer un seul album à la fois.</translation>
    </message>
    <message>
        <source>Please drop either an album, to open it, or pictures, to load them.</source>
        <translation>Veuillez déposer soit un album, pour l&apos;ouvrir, soit des photos, pour les charger.</translation>
    </message>
    <message>
        <source>There is neither an album nor a picture among these files.</source>
        <translation>Il n&apos;y a ni album ni photo parmi ces fichiers.</translation>
    </message>
    <message>
        <source>Please open or create an album first, then drop the pictures.</source>
        <translation>Veuillez d&apos;abord ouvrir ou créer un album, puis déposer les photos.</translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) loaded</source>
        <translation>
            <numerusform>%n photo chargée</numerusform>
            <numerusform>%n photos chargées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) were in the album already</source>
        <translation>
            <numerusform>%n photo déjà dans l&apos;album</numerusform>
            <numerusform>%n photos déjà dans l&apos;album</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) left out, because you stopped</source>
        <translation>
            <numerusform>%n photo laissée de côté, parce que vous avez arrêté</numerusform>
            <numerusform>%n photos laissées de côté, parce que vous avez arrêté</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FileList</name>
    <message>
        <source>%1 file(s) of the folder &apos;%2&apos; left out: their names are not valid text.</source>
        <translation>%1 fichier(s) du dossier « %2 » laissé(s) de côté : leurs noms ne sont pas du texte valide.</translation>
    </message>
</context>
<context>
    <name>FilterPanel</name>
    <message>
        <source>Picture filter</source>
        <translation>Filtre des photos</translation>
    </message>
    <message>
        <source>Click to add or remove filter value</source>
        <translation>Cliquez pour ajouter ou retirer une valeur du filtre</translation>
    </message>
    <message>
        <source>Filter values</source>
        <translation>Valeurs du filtre</translation>
    </message>
    <message>
        <source>Click to select filter</source>
        <translation>Cliquez pour choisir le filtre</translation>
    </message>
    <message>
        <source>Click a caracteristic to filter pictures</source>
        <translation>Cliquez une caractéristique pour filtrer les photos</translation>
    </message>
    <message>
        <source>Edit the filter labels</source>
        <translation>Modifier les libellés du filtre</translation>
    </message>
    <message>
        <source>Name the Caracteristics</source>
        <translation>Nommer les caractéristiques</translation>
    </message>
    <message>
        <source>Find a value</source>
        <translation>Chercher une valeur</translation>
    </message>
    <message>
        <source>Picture filter in words</source>
        <translation>Filtre des photos en toutes lettres</translation>
    </message>
</context>
<context>
    <name>FilterSentence</name>
    <message>
        <source>%1 is %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1 is %2 or %3</source>
        <translation>%1 : %2 ou %3</translation>
    </message>
    <message>
        <source>%1 is %2, %3 or %4</source>
        <translation>%1 : %2, %3 ou %4</translation>
    </message>
    <message numerus="yes">
        <source>%1 is %2, %3 or one of %n others</source>
        <translation>
            <numerusform>%1 : %2, %3 ou %n autre</numerusform>
            <numerusform>%1 : %2, %3 ou %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is not %2</source>
        <translation>%1 : pas %2</translation>
    </message>
    <message>
        <source>%1 is neither %2 nor %3</source>
        <translation>%1 : ni %2 ni %3</translation>
    </message>
    <message>
        <source>%1 is none of %2, %3 and %4</source>
        <translation>%1 : ni %2, ni %3, ni %4</translation>
    </message>
    <message numerus="yes">
        <source>%1 is none of %2, %3 and %n others</source>
        <translation>
            <numerusform>%1 : ni %2, ni %3, ni %n autre</numerusform>
            <numerusform>%1 : ni %2, ni %3, ni %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>not given</source>
        <translation>non renseigné</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Any picture</source>
        <translation>Toutes les photos</translation>
    </message>
    <message>
        <source>%1, and %2</source>
        <translation>%1, et %2</translation>
    </message>
    <message>
        <source>%1, %2, and %3</source>
        <translation>%1, %2, et %3</translation>
    </message>
    <message>
        <source>the file is %1</source>
        <translation>fichier : %1</translation>
    </message>
    <message>
        <source>%1: ...</source>
        <translation>%1 : ...</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n pictures</source>
        <translation>
            <numerusform>%1 : %n photo</numerusform>
            <numerusform>%1 : %n photos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: no picture fits</source>
        <translation>%1 : aucune photo ne convient</translation>
    </message>
    <message>
        <source>the words are %1</source>
        <translation>mots : %1</translation>
    </message>
    <message>
        <source>the folder is %1</source>
        <translation>dossier : %1</translation>
    </message>
    <message>
        <source>not indexed</source>
        <translation>non indexées</translation>
    </message>
    <message>
        <source>the file is missing</source>
        <translation>fichier manquant</translation>
    </message>
    <message>
        <source>%1 is given</source>
        <translation>%1 : renseigné</translation>
    </message>
</context>
<context>
    <name>FilterValueList</name>
    <message>
        <source>No longer among the values of this caracteristic</source>
        <translation>Ne figure plus parmi les valeurs de cette caractéristique</translation>
    </message>
    <message>
        <source>Pictures that have none of the chosen values</source>
        <translation>Photos qui n&apos;ont aucune des valeurs choisies</translation>
    </message>
</context>
<context>
    <name>FilterValues</name>
    <message>
        <source>not </source>
        <translation>sauf </translation>
    </message>
    <message>
        <source>* (Reset)</source>
        <translation>* (Effacer)</translation>
    </message>
</context>
<context>
    <name>FolderList</name>
    <message>
        <source>%1 folder(s) in &apos;%2&apos; left out: their names are not valid text.</source>
        <translation>%1 dossier(s) de « %2 » laissé(s) de côté : leurs noms ne sont pas du texte valide.</translation>
    </message>
</context>
<context>
    <name>FolderListing</name>
    <message>
        <source>The folder &apos;%1&apos; cannot be read: %2</source>
        <translation>Impossible de lire le dossier « %1 » : %2</translation>
    </message>
</context>
<context>
    <name>FoundModel</name>
    <message numerus="yes">
        <source>%n files to choose from</source>
        <translation>
            <numerusform>%n fichier au choix</numerusform>
            <numerusform>%n fichiers au choix</numerusform>
        </translation>
    </message>
    <message>
        <source>not found</source>
        <translation>non trouvée</translation>
    </message>
    <message>
        <source>Missing file</source>
        <translation>Fichier manquant</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Trouvé</translation>
    </message>
</context>
<context>
    <name>frmCheckAlbum</name>
    <message>
        <source>Earlier States</source>
        <translation>États antérieurs</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Check Album</source>
        <translation>Vérifier l&apos;album</translation>
    </message>
    <message>
        <source>The check changes nothing. It looks at the album&apos;s file, at how chapters and paragraphs hang together, and at the pictures.</source>
        <translation>La vérification ne modifie rien. Elle regarde le fichier de l&apos;album, comment les chapitres et les paragraphes se tiennent, et les photos.</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Mend how chapters and paragraphs hang together</source>
        <translation>Remettre en ordre comment les chapitres et les paragraphes se tiennent</translation>
    </message>
    <message>
        <source>Repair Album</source>
        <translation>Réparer l&apos;album</translation>
    </message>
    <message>
        <source>Show the album as it was on earlier days</source>
        <translation>Montrer l&apos;album tel qu&apos;il était les jours d&apos;avant</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Vérifier</translation>
    </message>
    <message>
        <source>The album is being copied, so that nobody waits for the check...</source>
        <translation>L&apos;album est copié, pour que personne n&apos;attende la vérification...</translation>
    </message>
    <message>
        <source>The album&apos;s file is being checked...</source>
        <translation>Le fichier de l&apos;album est vérifié...</translation>
    </message>
    <message>
        <source>Chapters, paragraphs and links are being checked...</source>
        <translation>Les chapitres, les paragraphes et les liens sont vérifiés...</translation>
    </message>
    <message>
        <source>What pictures are described by is being checked...</source>
        <translation>Ce qui décrit les photos est vérifié...</translation>
    </message>
    <message>
        <source>The pictures&apos; files are being looked for...</source>
        <translation>Les fichiers des photos sont recherchés...</translation>
    </message>
    <message>
        <source>The check was stopped before its end.</source>
        <translation>La vérification a été arrêtée avant la fin.</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>Rien à signaler.</translation>
    </message>
    <message numerus="yes">
        <source>%n finding(s); each tells what mends it.</source>
        <translation>
            <numerusform>%n constat, avec ce qui y remédie.</numerusform>
            <numerusform>%n constats, chacun avec ce qui y remédie.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>frmDescribePictures</name>
    <message numerus="yes">
        <source>%1 of %n pictures chosen</source>
        <translation>
            <numerusform>%1 photo choisie sur %n</numerusform>
            <numerusform>%1 photos choisies sur %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Apply to %n Pictures</source>
        <translation>
            <numerusform>Appliquer à %n photo</numerusform>
            <numerusform>Appliquer à %n photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n different legends</source>
        <translation>
            <numerusform>%n légende différente</numerusform>
            <numerusform>%n légendes différentes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures described</source>
        <translation>
            <numerusform>%n photo décrite</numerusform>
            <numerusform>%n photos décrites</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Apply what you have entered to %n pictures ?</source>
        <translation>
            <numerusform>Appliquer ce que vous avez saisi à %n photo ?</numerusform>
            <numerusform>Appliquer ce que vous avez saisi à %n photos ?</numerusform>
        </translation>
    </message>
    <message>
        <source>Describe Pictures</source>
        <translation>Décrire des photos</translation>
    </message>
    <message>
        <source>Choose all pictures of the current one&apos;s folder</source>
        <translation>Choisir toutes les photos du dossier de la photo courante</translation>
    </message>
    <message>
        <source>Same Folder</source>
        <translation>Même dossier</translation>
    </message>
    <message>
        <source>Choose all pictures with the values of the current one</source>
        <translation>Choisir toutes les photos qui ont les valeurs de la photo courante</translation>
    </message>
    <message>
        <source>Same Values</source>
        <translation>Mêmes valeurs</translation>
    </message>
    <message>
        <source>Pictures to describe</source>
        <translation>Photos à décrire</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Légende</translation>
    </message>
    <message>
        <source>What becomes of the legends</source>
        <translation>Ce que deviennent les légendes</translation>
    </message>
    <message>
        <source>instead of the legends</source>
        <translation>à la place des légendes</translation>
    </message>
    <message>
        <source>before the legends</source>
        <translation>avant les légendes</translation>
    </message>
    <message>
        <source>after the legends</source>
        <translation>après les légendes</translation>
    </message>
    <message>
        <source>Write the fields that were changed, shown bold, into the chosen pictures (Return in a field)</source>
        <translation>Écrire les champs modifiés, en gras, dans les photos choisies (Entrée dans un champ)</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Enter the values of the picture described last (Ctrl+D)</source>
        <translation>Saisir les valeurs de la photo décrite en dernier (Ctrl+D)</translation>
    </message>
    <message>
        <source>As Before</source>
        <translation>Comme avant</translation>
    </message>
    <message>
        <source>Leave the window</source>
        <translation>Quitter la fenêtre</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Choose all pictures taken on the day of the current one, as their files say</source>
        <translation>Choisir toutes les photos prises le même jour que celle-ci, d&apos;après leurs fichiers</translation>
    </message>
    <message>
        <source>Same Day</source>
        <translation>Même jour</translation>
    </message>
    <message>
        <source>Change the values and names of the caracteristics</source>
        <translation>Modifier les valeurs et les noms des caractéristiques</translation>
    </message>
    <message>
        <source>Edit &amp;Tables</source>
        <translation>Modifier les &amp;tables</translation>
    </message>
</context>
<context>
    <name>frmEarlierStates</name>
    <message>
        <source>Earlier States</source>
        <translation>États antérieurs</translation>
    </message>
    <message>
        <source>Earlier states</source>
        <translation>États antérieurs</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Gardé le</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Chapters</source>
        <translation>Chapitres</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Open this state in a window of its own, only to read it</source>
        <translation>Ouvrir cet état dans une fenêtre à part, seulement pour le lire</translation>
    </message>
    <message>
        <source>Look Into</source>
        <translation>Regarder</translation>
    </message>
    <message>
        <source>Make the album as it was then; what it is now is kept first</source>
        <translation>Remettre l&apos;album tel qu&apos;il était alors ; ce qu&apos;il est maintenant est d&apos;abord gardé</translation>
    </message>
    <message>
        <source>Take Back</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Take only some chapters of this state into the album</source>
        <translation>Reprendre dans l&apos;album seulement quelques chapitres de cet état</translation>
    </message>
    <message>
        <source>Take Back Chapters</source>
        <translation>Reprendre des chapitres</translation>
    </message>
    <message>
        <source>Delete this state for ever; the album stays as it is</source>
        <translation>Supprimer cet état pour toujours ; l&apos;album reste tel quel</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Keep the album as it is now among its earlier states</source>
        <translation>Garder l&apos;album tel qu&apos;il est maintenant parmi ses états antérieurs</translation>
    </message>
    <message>
        <source>Keep Now</source>
        <translation>Garder maintenant</translation>
    </message>
    <message>
        <source>Keep the album as it is before the first change of each day</source>
        <translation>Garder l&apos;album tel qu&apos;il est avant la première modification de chaque jour</translation>
    </message>
    <message>
        <source>For the states of one album, at most :</source>
        <translation>Pour les états d&apos;un album, au maximum :</translation>
    </message>
    <message>
        <source>Space for the states of one album</source>
        <translation>Place pour les états d&apos;un album</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> Mo</translation>
    </message>
    <message>
        <source>Choose where the states of all albums are kept, for instance on another disk</source>
        <translation>Choisir où les états de tous les albums sont gardés, par exemple sur un autre disque</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Changer de dossier</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Kept in %1</source>
        <translation>Gardés dans %1</translation>
    </message>
    <message>
        <source>replaced by an earlier state</source>
        <translation>remplacé par un état antérieur</translation>
    </message>
    <message>
        <source>No earlier state of %1 is kept so far.</source>
        <translation>Aucun état antérieur de %1 n&apos;est encore gardé.</translation>
    </message>
    <message numerus="yes">
        <source>%1 as it was, %n time(s), in %2 :</source>
        <translation>
            <numerusform>%1 tel qu&apos;il était, %n fois, en %2 :</numerusform>
            <numerusform>%1 tel qu&apos;il était, %n fois, en %2 :</numerusform>
        </translation>
    </message>
    <message>
        <source>locked</source>
        <translation>verrouillé</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>endommagé</translation>
    </message>
    <message>
        <source>No other window of the program could be opened.</source>
        <translation>Aucune autre fenêtre du programme n&apos;a pu être ouverte.</translation>
    </message>
    <message>
        <source>Make the album as it was on %1? What it is now is kept among its earlier states first, so that it can be taken back too.</source>
        <translation>Remettre l&apos;album tel qu&apos;il était le %1 ? Ce qu&apos;il est maintenant est d&apos;abord gardé parmi ses états antérieurs, et pourra être repris aussi.</translation>
    </message>
    <message>
        <source>The album is as it was on %1.</source>
        <translation>L&apos;album est tel qu&apos;il était le %1.</translation>
    </message>
    <message>
        <source>Delete the state of %1 for ever? The album stays as it is.</source>
        <translation>Supprimer pour toujours l&apos;état du %1 ? L&apos;album reste tel quel.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; cannot be deleted.</source>
        <translation>Impossible de supprimer le fichier &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Folder for Earlier States</source>
        <translation>Dossier des états antérieurs</translation>
    </message>
    <message>
        <source>States are kept in the new folder from now on. Those in the former folder stay there; move them to the new one if you want to see them here.</source>
        <translation>Les états sont désormais gardés dans le nouveau dossier. Ceux de l&apos;ancien dossier y restent ; déplacez-les dans le nouveau si vous voulez les voir ici.</translation>
    </message>
    <message>
        <source>The album had no password then, and will have none.</source>
        <translation>L&apos;album n&apos;avait pas de mot de passe alors, et n&apos;en aura plus.</translation>
    </message>
</context>
<context>
    <name>frmFindPictures</name>
    <message>
        <source>Find Pictures</source>
        <translation>Chercher des photos</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Mots</translation>
    </message>
    <message>
        <source>Pictures with all of these words in their legend, name or values</source>
        <translation>Photos dont la légende, le nom ou les valeurs contiennent tous ces mots</translation>
    </message>
    <message>
        <source>Words of the legend, the name or the values</source>
        <translation>Mots de la légende, du nom ou des valeurs</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Pictures in this folder and those in it</source>
        <translation>Photos de ce dossier et de ses sous-dossiers</translation>
    </message>
    <message>
        <source>Any folder</source>
        <translation>Tous les dossiers</translation>
    </message>
    <message>
        <source>Not indexed</source>
        <translation>Non indexées</translation>
    </message>
    <message>
        <source>Pictures whose file is not where the album expects it</source>
        <translation>Photos dont le fichier n&apos;est pas là où l&apos;album l&apos;attend</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Manquantes</translation>
    </message>
    <message>
        <source>Pictures found</source>
        <translation>Photos trouvées</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Show these pictures one after the other</source>
        <translation>Montrer ces photos l&apos;une après l&apos;autre</translation>
    </message>
    <message>
        <source>Describe</source>
        <translation>Décrire</translation>
    </message>
    <message>
        <source>Describe the chosen pictures, or this one and those after it</source>
        <translation>Décrire les photos choisies, ou celle-ci et les suivantes</translation>
    </message>
    <message>
        <source>Link to Paragraph</source>
        <translation>Lier au paragraphe</translation>
    </message>
    <message>
        <source>Show the chosen pictures with the paragraph, whatever its filter says</source>
        <translation>Montrer les photos choisies avec le paragraphe, quel que soit son filtre</translation>
    </message>
    <message>
        <source>Unlink from Paragraph</source>
        <translation>Délier du paragraphe</translation>
    </message>
    <message>
        <source>Make Paragraph</source>
        <translation>Créer un paragraphe</translation>
    </message>
    <message>
        <source>Create a paragraph with this filter</source>
        <translation>Créer un paragraphe avec ce filtre</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Leave the window</source>
        <translation>Quitter la fenêtre</translation>
    </message>
    <message>
        <source>Describe the chosen pictures, or all of these, together</source>
        <translation>Décrire ensemble les photos choisies, ou toutes celles-ci</translation>
    </message>
    <message>
        <source>Describe Together</source>
        <translation>Décrire ensemble</translation>
    </message>
    <message>
        <source>Take captions, keywords and dates from the files of the selected pictures, or of all</source>
        <translation>Reprendre les légendes, les mots-clés et les dates des fichiers des photos choisies, ou de toutes</translation>
    </message>
    <message>
        <source>Take from Files</source>
        <translation>Reprendre des fichiers</translation>
    </message>
</context>
<context>
    <name>frmLinkedPictures</name>
    <message numerus="yes">
        <source>%n linked pictures, which the paragraph shows first, in this order</source>
        <translation>
            <numerusform>%n photo liée, que le paragraphe montre en premier</numerusform>
            <numerusform>%n photos liées, que le paragraphe montre en premier, dans cet ordre</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n linked files are not in the album.</source>
        <translation>
            <numerusform>%n fichier lié n&apos;est pas dans l&apos;album.</numerusform>
            <numerusform>%n fichiers liés ne sont pas dans l&apos;album.</numerusform>
        </translation>
    </message>
    <message>
        <source>No picture is linked to this paragraph.</source>
        <translation>Aucune photo n&apos;est liée à ce paragraphe.</translation>
    </message>
    <message>
        <source>Linked Pictures</source>
        <translation>Photos liées</translation>
    </message>
    <message>
        <source>Linked pictures</source>
        <translation>Photos liées</translation>
    </message>
    <message>
        <source>Remove the links to files that the album does not hold</source>
        <translation>Retirer les liens vers des fichiers que l&apos;album ne contient pas</translation>
    </message>
    <message>
        <source>Take Those Out</source>
        <translation>Les retirer</translation>
    </message>
    <message>
        <source>Show the chosen pictures earlier (Ctrl+Up); they can be dragged too</source>
        <translation>Montrer les photos choisies plus tôt (Ctrl+Haut) ; on peut aussi les glisser</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Plus tôt</translation>
    </message>
    <message>
        <source>Show the chosen pictures later (Ctrl+Down); they can be dragged too</source>
        <translation>Montrer les photos choisies plus tard (Ctrl+Bas) ; on peut aussi les glisser</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Remove the links to the chosen pictures (Del); they stay in the album</source>
        <translation>Retirer les liens vers les photos choisies (Suppr) ; elles restent dans l&apos;album</translation>
    </message>
    <message>
        <source>Take Out</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Find pictures of the album and link them to this paragraph (Ctrl+F)</source>
        <translation>Chercher des photos de l&apos;album et les lier à ce paragraphe (Ctrl+F)</translation>
    </message>
    <message>
        <source>Find Pictures</source>
        <translation>Chercher des photos</translation>
    </message>
    <message>
        <source>Leave the window</source>
        <translation>Quitter la fenêtre</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
</context>
<context>
    <name>frmMissingPictures</name>
    <message numerus="yes">
        <source>%1 of %n picture(s) missing</source>
        <translation>
            <numerusform>%1 photo manquante sur %n</numerusform>
            <numerusform>%1 photos manquantes sur %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>you stopped after %n files</source>
        <translation>
            <numerusform>vous avez arrêté après %n fichier</numerusform>
            <numerusform>vous avez arrêté après %n fichiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders cannot be read</source>
        <translation>
            <numerusform>%n dossier ne peut pas être lu</numerusform>
            <numerusform>%n dossiers ne peuvent pas être lus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) found again</source>
        <translation>
            <numerusform>%n photo retrouvée</numerusform>
            <numerusform>%n photos retrouvées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n links follow</source>
        <translation>
            <numerusform>%n lien suit</numerusform>
            <numerusform>%n liens suivent</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file patterns of paragraphs follow</source>
        <translation>
            <numerusform>le modèle de fichiers de %n paragraphe suit</numerusform>
            <numerusform>les modèles de fichiers de %n paragraphes suivent</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file patterns stay, as not all pictures of their folders are in one place</source>
        <translation>
            <numerusform>%n modèle de fichiers reste, car les photos de son dossier ne sont pas toutes au même endroit</numerusform>
            <numerusform>%n modèles de fichiers restent, car les photos de leurs dossiers ne sont pas toutes au même endroit</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already in the album</source>
        <translation>
            <numerusform>%n déjà dans l&apos;album</numerusform>
            <numerusform>%n déjà dans l&apos;album</numerusform>
        </translation>
    </message>
    <message>
        <source>Folder to Look In</source>
        <translation>Dossier où chercher</translation>
    </message>
    <message>
        <source>There is no folder &apos;%1&apos;.</source>
        <translation>Il n&apos;y a pas de dossier « %1 ».</translation>
    </message>
    <message>
        <source>%1 of %2 found, %3 doubtful, %4 not found</source>
        <translation>%1 trouvées sur %2, %3 douteuses, %4 non trouvées</translation>
    </message>
    <message>
        <source>Stopped: nothing was changed</source>
        <translation>Arrêté : rien n&apos;a été changé</translation>
    </message>
    <message>
        <source>Missing Pictures</source>
        <translation>Photos manquantes</translation>
    </message>
    <message>
        <source>Folders with missing pictures</source>
        <translation>Dossiers avec des photos manquantes</translation>
    </message>
    <message>
        <source>Choose the folders whose pictures are to be found; none means all</source>
        <translation>Choisissez les dossiers dont il faut retrouver les photos ; aucun veut dire tous</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Manquantes</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Look in :</source>
        <translation>Chercher dans :</translation>
    </message>
    <message>
        <source>Folder to look in, with all folders inside</source>
        <translation>Dossier où chercher, avec tous les dossiers contenus</translation>
    </message>
    <message>
        <source>Choose the folder or the disk in which the pictures may be now</source>
        <translation>Choisir le dossier ou le disque où les photos peuvent être à présent</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>Look for the missing pictures in this folder and all folders inside; nothing is changed yet</source>
        <translation>Chercher les photos manquantes dans ce dossier et tous les dossiers contenus ; rien n&apos;est encore changé</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Chercher</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Ce qui a été trouvé</translation>
    </message>
    <message>
        <source>Files that may be this picture</source>
        <translation>Fichiers qui peuvent être cette photo</translation>
    </message>
    <message>
        <source>Choose the file that is this picture</source>
        <translation>Choisir le fichier qui est cette photo</translation>
    </message>
    <message>
        <source>Give the pictures that were found their new paths, with their links and the file patterns of paragraphs</source>
        <translation>Donner aux photos trouvées leurs nouveaux chemins, avec leurs liens et les modèles de fichiers des paragraphes</translation>
    </message>
    <message>
        <source>Take New Paths</source>
        <translation>Reprendre les nouveaux chemins</translation>
    </message>
    <message>
        <source>Show the missing pictures in the album</source>
        <translation>Montrer les photos manquantes de l&apos;album</translation>
    </message>
    <message>
        <source>Show in Find Pictures</source>
        <translation>Montrer dans Chercher des photos</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Say where the pictures may be now, and press Search. Nothing is changed before you take the new paths.</source>
        <translation>Dites où les photos peuvent être à présent, puis appuyez sur Chercher. Rien n&apos;est changé avant que vous ne repreniez les nouveaux chemins.</translation>
    </message>
</context>
<context>
    <name>frmPlaceParagraph</name>
    <message>
        <source>Make Paragraph</source>
        <translation>Créer un paragraphe</translation>
    </message>
    <message>
        <source>In the chapter :</source>
        <translation>Dans le chapitre :</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>Chapitre</translation>
    </message>
    <message>
        <source>After the paragraph :</source>
        <translation>Après le paragraphe :</translation>
    </message>
    <message>
        <source>Paragraphs</source>
        <translation>Paragraphes</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>(at the chapter&apos;s beginning)</source>
        <translation>(au début du chapitre)</translation>
    </message>
</context>
<context>
    <name>frmPublish</name>
    <message>
        <source>Publish Story</source>
        <translation>Publier le récit</translation>
    </message>
    <message>
        <source>Web pages</source>
        <translation>Pages web</translation>
    </message>
    <message>
        <source>A folder with a front page and a page for each chapter</source>
        <translation>Un dossier avec une page d&apos;accueil et une page par chapitre</translation>
    </message>
    <message>
        <source>One web page</source>
        <translation>Une page web</translation>
    </message>
    <message>
        <source>A single file with its pictures inside, to be sent</source>
        <translation>Un seul fichier qui contient ses photos, à envoyer</translation>
    </message>
    <message>
        <source>Book</source>
        <translation>Livre</translation>
    </message>
    <message>
        <source>A PDF to be read on a screen or printed</source>
        <translation>Un PDF à lire à l&apos;écran ou à imprimer</translation>
    </message>
    <message>
        <source>Album with its pictures</source>
        <translation>Album avec ses photos</translation>
    </message>
    <message>
        <source>A folder that opens on every computer that has this program</source>
        <translation>Un dossier qui s&apos;ouvre sur tout ordinateur qui a ce programme</translation>
    </message>
    <message>
        <source>Chapters</source>
        <translation>Chapitres</translation>
    </message>
    <message>
        <source>The chapters to publish</source>
        <translation>Les chapitres à publier</translation>
    </message>
    <message>
        <source>Title :</source>
        <translation>Titre :</translation>
    </message>
    <message>
        <source>Pictures of a paragraph, at most :</source>
        <translation>Photos d&apos;un paragraphe, au plus :</translation>
    </message>
    <message>
        <source>Largest pictures :</source>
        <translation>Les plus grandes photos :</translation>
    </message>
    <message>
        <source>1280 pixels</source>
        <translation>1280 pixels</translation>
    </message>
    <message>
        <source>1920 pixels</source>
        <translation>1920 pixels</translation>
    </message>
    <message>
        <source>2560 pixels</source>
        <translation>2560 pixels</translation>
    </message>
    <message>
        <source>3840 pixels</source>
        <translation>3840 pixels</translation>
    </message>
    <message>
        <source>Paper :</source>
        <translation>Papier :</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>A4, landscape</source>
        <translation>A4, paysage</translation>
    </message>
    <message>
        <source>A5</source>
        <translation>A5</translation>
    </message>
    <message>
        <source>A5, landscape</source>
        <translation>A5, paysage</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>Lettre US</translation>
    </message>
    <message>
        <source>Letter, landscape</source>
        <translation>Lettre US, paysage</translation>
    </message>
    <message>
        <source>Pictures of the book :</source>
        <translation>Photos du livre :</translation>
    </message>
    <message>
        <source>As they are</source>
        <translation>Telles quelles</translation>
    </message>
    <message>
        <source>300 dots per inch, to be printed</source>
        <translation>300 points par pouce, à imprimer</translation>
    </message>
    <message>
        <source>150 dots per inch, for screens</source>
        <translation>150 points par pouce, pour l&apos;écran</translation>
    </message>
    <message>
        <source>Pictures to take along :</source>
        <translation>Photos à emporter :</translation>
    </message>
    <message>
        <source>All of the album</source>
        <translation>Toutes celles de l&apos;album</translation>
    </message>
    <message>
        <source>Those that the story shows</source>
        <translation>Celles que montre le récit</translation>
    </message>
    <message>
        <source>Their size :</source>
        <translation>Leur taille :</translation>
    </message>
    <message>
        <source>At most 4096 pixels</source>
        <translation>Au plus 4096 pixels</translation>
    </message>
    <message>
        <source>At most 2048 pixels</source>
        <translation>Au plus 2048 pixels</translation>
    </message>
    <message>
        <source>At most 1024 pixels</source>
        <translation>Au plus 1024 pixels</translation>
    </message>
    <message>
        <source>Into :</source>
        <translation>Dans :</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Choisir...</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Montrer</translation>
    </message>
    <message>
        <source>Open what was published</source>
        <translation>Ouvrir ce qui a été publié</translation>
    </message>
    <message>
        <source>Publish</source>
        <translation>Publier</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>%1 with pictures</source>
        <translation>%1 avec photos</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translation>%1 existe déjà. Le remplacer ?</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Page web</translation>
    </message>
    <message>
        <source>The story is being read...</source>
        <translation>Le récit est lu...</translation>
    </message>
    <message>
        <source>Picture %1 of %2...</source>
        <translation>Photo %1 sur %2...</translation>
    </message>
    <message>
        <source>Please say where to publish it.</source>
        <translation>Veuillez dire où le publier.</translation>
    </message>
    <message>
        <source>Please tick at least one chapter.</source>
        <translation>Veuillez cocher au moins un chapitre.</translation>
    </message>
    <message>
        <source>Nothing was published.</source>
        <translation>Rien n&apos;a été publié.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Arrêté.</translation>
    </message>
    <message>
        <source>Published.</source>
        <translation>Publié.</translation>
    </message>
    <message>
        <source>Published, but not all of it; see below.</source>
        <translation>Publié, mais pas entièrement ; voir ci-dessous.</translation>
    </message>
</context>
<context>
    <name>frmTakeChapters</name>
    <message>
        <source>Take Back Chapters</source>
        <translation>Reprendre des chapitres</translation>
    </message>
    <message>
        <source>Chapters to take back, as they were then :</source>
        <translation>Chapitres à reprendre, tels qu&apos;ils étaient alors :</translation>
    </message>
    <message>
        <source>Chapters</source>
        <translation>Chapitres</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>Chapitre</translation>
    </message>
    <message>
        <source>Paragraphs</source>
        <translation>Paragraphes</translation>
    </message>
    <message>
        <source>As new chapters at the end of the story</source>
        <translation>Comme nouveaux chapitres à la fin de l&apos;histoire</translation>
    </message>
    <message>
        <source>In the place of the chapters of the same name</source>
        <translation>À la place des chapitres du même nom</translation>
    </message>
    <message>
        <source>Take the ticked chapters; the album as it is now is kept first</source>
        <translation>Reprendre les chapitres cochés ; l&apos;album tel qu&apos;il est maintenant est d&apos;abord gardé</translation>
    </message>
    <message>
        <source>Take Back</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message numerus="yes">
        <source>%n chapter(s) taken back.</source>
        <translation>
            <numerusform>%n chapitre repris.</numerusform>
            <numerusform>%n chapitres repris.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n paragraph(s) in all.</source>
        <translation>
            <numerusform>%n paragraphe en tout.</numerusform>
            <numerusform>%n paragraphes en tout.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n link(s) to pictures came with them.</source>
        <translation>
            <numerusform>%n lien vers une photo est revenu avec.</numerusform>
            <numerusform>%n liens vers des photos sont revenus avec.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) that the album did not hold any more came back with them.</source>
        <translation>
            <numerusform>%n photo que l&apos;album ne contenait plus est revenue avec.</numerusform>
            <numerusform>%n photos que l&apos;album ne contenait plus sont revenues avec.</numerusform>
        </translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(sans nom)</translation>
    </message>
</context>
<context>
    <name>frmTakeFromFiles</name>
    <message>
        <source>Take from Files</source>
        <translation>Reprendre des fichiers</translation>
    </message>
    <message>
        <source>Read no more files, and take from those that were read</source>
        <translation>Ne plus lire de fichiers, et reprendre ceux qui ont été lus</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>What the files hold, and where; fields without a tick are passed over :</source>
        <translation>Ce que contiennent les fichiers, et où ; les champs décochés sont laissés de côté :</translation>
    </message>
    <message>
        <source>Fields of the files</source>
        <translation>Champs des fichiers</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Champ</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Reprises</translation>
    </message>
    <message>
        <source>Captions become legends where there is none</source>
        <translation>Les légendes des fichiers vont aux photos qui n&apos;en ont pas</translation>
    </message>
    <message>
        <source>Keywords :</source>
        <translation>Mots-clés :</translation>
    </message>
    <message>
        <source>Keywords go to</source>
        <translation>Les mots-clés vont</translation>
    </message>
    <message>
        <source>Date taken :</source>
        <translation>Date de la photo :</translation>
    </message>
    <message>
        <source>Part of the date</source>
        <translation>Partie de la date</translation>
    </message>
    <message>
        <source>Not taken</source>
        <translation>Rien</translation>
    </message>
    <message>
        <source>Year (1998)</source>
        <translation>Année (1998)</translation>
    </message>
    <message>
        <source>Month (1998-07)</source>
        <translation>Mois (1998-07)</translation>
    </message>
    <message>
        <source>Day (1998-07-14)</source>
        <translation>Jour (1998-07-14)</translation>
    </message>
    <message>
        <source>The date goes to</source>
        <translation>La date va</translation>
    </message>
    <message>
        <source>Write this into the album; the files stay as they are</source>
        <translation>Écrire cela dans l&apos;album ; les fichiers restent tels quels</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>To characteristics that have such a value</source>
        <translation>Aux caractéristiques qui ont une telle valeur</translation>
    </message>
    <message>
        <source>To %1</source>
        <translation>À : %1</translation>
    </message>
    <message>
        <source>Caption: %1</source>
        <translation>Légende : %1</translation>
    </message>
    <message>
        <source>Keywords: %1</source>
        <translation>Mots-clés : %1</translation>
    </message>
    <message>
        <source>Date: %1</source>
        <translation>Date : %1</translation>
    </message>
    <message>
        <source>The files are being read...</source>
        <translation>Les fichiers sont en cours de lecture...</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n file(s) read</source>
        <translation>
            <numerusform>%1 fichier sur %n lu</numerusform>
            <numerusform>%1 fichiers sur %n lus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cannot be read to the end</source>
        <translation>
            <numerusform>%n illisible jusqu&apos;au bout</numerusform>
            <numerusform>%n illisibles jusqu&apos;au bout</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n keyword(s) find no place.</source>
        <translation>
            <numerusform>%n mot-clé ne trouve pas de place.</numerusform>
            <numerusform>%n mots-clés ne trouvent pas de place.</numerusform>
        </translation>
    </message>
    <message>
        <source>of the last change of the file</source>
        <translation>de la dernière modification du fichier</translation>
    </message>
</context>
<context>
    <name>frmUndo</name>
    <message>
        <source>Undo Several Steps</source>
        <translation>Annuler plusieurs étapes</translation>
    </message>
    <message>
        <source>What was done since the album was opened, the newest first. The chosen step is undone with all those above it :</source>
        <translation>Ce qui a été fait depuis l&apos;ouverture de l&apos;album, le plus récent d&apos;abord. L&apos;étape choisie est annulée avec toutes celles au-dessus :</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Étapes</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message numerus="yes">
        <source>Undo %n Steps</source>
        <translation>
            <numerusform>Annuler %n étape</numerusform>
            <numerusform>Annuler %n étapes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>GroupChoice</name>
    <message>
        <source>Dates read: %1 of %2</source>
        <translation>Dates lues : %1 sur %2</translation>
    </message>
    <message>
        <source>The day of this picture is not known</source>
        <translation>Le jour de cette photo n&apos;est pas connu</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Lumenark Help</source>
        <translation>Aide de Lumenark</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>The help file &apos;%1&apos; cannot be read.</source>
        <translation>Impossible de lire le fichier d&apos;aide « %1 ».</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>Help text</source>
        <translation>Texte de l&apos;aide</translation>
    </message>
</context>
<context>
    <name>IndexingKeys</name>
    <message>
        <source>Next picture, from a field</source>
        <translation>Photo suivante, depuis un champ</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>Photo suivante</translation>
    </message>
    <message>
        <source>Save and leave</source>
        <translation>Enregistrer et quitter</translation>
    </message>
    <message>
        <source>Save and leave, outside the fields</source>
        <translation>Enregistrer et quitter, hors des champs</translation>
    </message>
    <message>
        <source>Indexing</source>
        <translation>Indexation</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>Photo précédente</translation>
    </message>
    <message>
        <source>The values of the picture described last</source>
        <translation>Les valeurs de la photo décrite en dernier</translation>
    </message>
    <message>
        <source>The same for the field you are in</source>
        <translation>De même pour le champ où vous êtes</translation>
    </message>
</context>
<context>
    <name>InstalledSample</name>
    <message>
        <source>Lumenark Sample Story</source>
        <translation>Histoire exemple Lumenark</translation>
    </message>
    <message>
        <source>Lumenark Sample Story %1</source>
        <translation>Histoire exemple Lumenark %1</translation>
    </message>
    <message>
        <source>The sample story cannot be copied to &apos;%1&apos;: %2</source>
        <translation>Impossible de copier l&apos;histoire d&apos;exemple dans « %1 » : %2</translation>
    </message>
    <message>
        <source>The sample story is being copied in another window.</source>
        <translation>Une autre fenêtre est en train de copier l&apos;histoire d&apos;exemple.</translation>
    </message>
</context>
<context>
    <name>KeySheet</name>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
</context>
<context>
    <name>LinkedPicturesKeys</name>
    <message>
        <source>Linked pictures</source>
        <translation>Photos liées</translation>
    </message>
    <message>
        <source>Show the chosen pictures earlier</source>
        <translation>Montrer les photos choisies plus tôt</translation>
    </message>
    <message>
        <source>Show the chosen pictures later</source>
        <translation>Montrer les photos choisies plus tard</translation>
    </message>
    <message>
        <source>Take the chosen pictures out</source>
        <translation>Retirer les photos choisies</translation>
    </message>
    <message>
        <source>Choose all pictures</source>
        <translation>Choisir toutes les photos</translation>
    </message>
    <message>
        <source>Show the picture large, and back</source>
        <translation>Montrer la photo en grand, et retour</translation>
    </message>
    <message>
        <source>Larger and smaller pictures</source>
        <translation>Photos plus grandes et plus petites</translation>
    </message>
    <message>
        <source>Find pictures, and link them</source>
        <translation>Chercher des photos, et les lier</translation>
    </message>
    <message>
        <source>Go back to the editor</source>
        <translation>Revenir à l&apos;éditeur</translation>
    </message>
    <message>
        <source>Open the manual</source>
        <translation>Ouvrir le manuel</translation>
    </message>
    <message>
        <source>Show this sheet</source>
        <translation>Montrer cette fiche</translation>
    </message>
</context>
<context>
    <name>LongWorkDialog</name>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
</context>
<context>
    <name>LookOptions</name>
    <message>
        <source>Small</source>
        <translation>Petite</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Grande</translation>
    </message>
    <message>
        <source>Very Large</source>
        <translation>Très grande</translation>
    </message>
    <message>
        <source>As on the Desktop</source>
        <translation>Comme sur le bureau</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claires</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombres</translation>
    </message>
    <message>
        <source>Changes at the next start of the program</source>
        <translation>Change au prochain démarrage du programme</translation>
    </message>
</context>
<context>
    <name>MainWindowKeys</name>
    <message>
        <source>Main window</source>
        <translation>Fenêtre principale</translation>
    </message>
    <message>
        <source>Read the selected chapter</source>
        <translation>Lire le chapitre choisi</translation>
    </message>
    <message>
        <source>Read it in full screen</source>
        <translation>Le lire en plein écran</translation>
    </message>
    <message>
        <source>Rename the selected chapter</source>
        <translation>Renommer le chapitre choisi</translation>
    </message>
    <message>
        <source>Delete it, if it has no paragraphs</source>
        <translation>Le supprimer, s&apos;il n&apos;a pas de paragraphes</translation>
    </message>
    <message>
        <source>Move it up</source>
        <translation>Le monter</translation>
    </message>
    <message>
        <source>Move it down</source>
        <translation>Le descendre</translation>
    </message>
    <message>
        <source>Create a new album</source>
        <translation>Créer un nouvel album</translation>
    </message>
    <message>
        <source>Open an album</source>
        <translation>Ouvrir un album</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Terminer le programme</translation>
    </message>
    <message>
        <source>Open the manual</source>
        <translation>Ouvrir le manuel</translation>
    </message>
    <message>
        <source>Show this sheet</source>
        <translation>Montrer cette feuille</translation>
    </message>
    <message>
        <source>Find pictures</source>
        <translation>Chercher des photos</translation>
    </message>
    <message>
        <source>In every window: undo what was done last</source>
        <translation>Dans toutes les fenêtres : annuler la dernière action</translation>
    </message>
    <message>
        <source>In every window: redo it</source>
        <translation>Dans toutes les fenêtres : la rétablir</translation>
    </message>
</context>
<context>
    <name>MainWindowState</name>
    <message>
        <source>Please OPEN or CREATE an ALBUM
Press F1 for Help</source>
        <translation>Veuillez OUVRIR ou CRÉER un ALBUM
Appuyez sur F1 pour l&apos;aide</translation>
    </message>
    <message>
        <source>Please LOAD and INDEX Pictures
Press F1 for Help</source>
        <translation>Veuillez CHARGER et INDEXER des photos
Appuyez sur F1 pour l&apos;aide</translation>
    </message>
    <message>
        <source>Please Create the first Chapter of your Album</source>
        <translation>Veuillez créer le premier chapitre de votre album</translation>
    </message>
    <message>
        <source>Choose the chapter you want to read</source>
        <translation>Choisissez le chapitre à lire</translation>
    </message>
    <message>
        <source>First Open or Create an Album</source>
        <translation>Ouvrez ou créez d&apos;abord un album</translation>
    </message>
</context>
<context>
    <name>OldAlbumReport</name>
    <message>
        <source>%1 (new).alb</source>
        <translation>%1 (nouveau).alb</translation>
    </message>
    <message>
        <source>%1 (new %2).alb</source>
        <translation>%1 (nouveau %2).alb</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is an album of the former file format. Shall a new album be made of it? The old one stays as it is.</source>
        <translation>« %1 » est un album à l&apos;ancien format de fichier. Voulez-vous en faire un nouvel album ? L&apos;ancien reste tel quel.</translation>
    </message>
    <message>
        <source>Save the new Album</source>
        <translation>Enregistrer le nouvel album</translation>
    </message>
    <message>
        <source>Album|*.alb</source>
        <translation>Album|*.alb</translation>
    </message>
    <message>
        <source>The new album is &apos;%1&apos;.</source>
        <translation>Le nouvel album est « %1 ».</translation>
    </message>
    <message>
        <source>Not everything is as it was:</source>
        <translation>Tout n&apos;est pas comme avant :</translation>
    </message>
    <message>
        <source>The template &apos;%1&apos; cannot be read: %2</source>
        <translation>Impossible de lire le modèle « %1 » : %2</translation>
    </message>
    <message>
        <source>The album &apos;%1&apos; cannot be created: %2</source>
        <translation>Impossible de créer l&apos;album « %1 » : %2</translation>
    </message>
    <message>
        <source>Table %1 cannot be read.</source>
        <translation>La table %1 ne peut pas être lue.</translation>
    </message>
    <message>
        <source>Table %1 is damaged and came over in part: %2 of %3 rows.</source>
        <translation>La table %1 est endommagée et n&apos;a été reprise qu&apos;en partie : %2 lignes sur %3.</translation>
    </message>
    <message>
        <source>Table %1: %2 of %3 rows cannot be read.</source>
        <translation>Table %1 : %2 lignes sur %3 ne peuvent pas être lues.</translation>
    </message>
    <message>
        <source>Table %1: its list of pages is damaged; its rows were looked for in the whole file.</source>
        <translation>Table %1 : sa liste de pages est endommagée ; ses lignes ont été cherchées dans tout le fichier.</translation>
    </message>
    <message>
        <source>Table %1 is missing.</source>
        <translation>La table %1 manque.</translation>
    </message>
    <message>
        <source>The list of tables is damaged; some may be missing.</source>
        <translation>La liste des tables est endommagée ; il peut en manquer.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a database of the former kind, but holds no album.</source>
        <translation>« %1 » est une base de données de l&apos;ancien genre, mais ne contient pas d&apos;album.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is the old album itself, which is never written to.</source>
        <translation>« %1 » est l&apos;ancien album lui-même, qui n&apos;est jamais modifié.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a file that can be replaced.</source>
        <translation>« %1 » n&apos;est pas un fichier qui puisse être remplacé.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists already.</source>
        <translation>« %1 » existe déjà.</translation>
    </message>
    <message>
        <source>%1, %2 and %3 came over.</source>
        <translation>%1, %2 et %3 ont été repris.</translation>
    </message>
    <message>
        <source>1 chapter</source>
        <translation>1 chapitre</translation>
    </message>
    <message>
        <source>%1 chapters</source>
        <translation>%1 chapitres</translation>
    </message>
    <message>
        <source>1 paragraph</source>
        <translation>1 paragraphe</translation>
    </message>
    <message>
        <source>%1 paragraphs</source>
        <translation>%1 paragraphes</translation>
    </message>
    <message>
        <source>1 picture</source>
        <translation>1 photo</translation>
    </message>
    <message>
        <source>%1 pictures</source>
        <translation>%1 photos</translation>
    </message>
    <message>
        <source>The new album has the old one&apos;s password.</source>
        <translation>Le nouvel album a le mot de passe de l&apos;ancien.</translation>
    </message>
    <message>
        <source>%1 more of this kind.</source>
        <translation>%1 autres du même genre.</translation>
    </message>
    <message>
        <source>and many more.</source>
        <translation>et beaucoup d&apos;autres.</translation>
    </message>
    <message>
        <source>and %1 more.</source>
        <translation>et %1 autres.</translation>
    </message>
    <message>
        <source>Pictures lie at places of another system, which were kept as they are. &quot;Reload Moved Pictures&quot; points them to where they are now. The folders:</source>
        <translation>Des photos se trouvent à des emplacements d&apos;un autre système, qui ont été gardés tels quels. « Retrouver les photos déplacées » les rattache à leur emplacement actuel. Les dossiers :</translation>
    </message>
    <message>
        <source>Table %1: the field %2 is missing.</source>
        <translation>Table %1 : le champ %2 manque.</translation>
    </message>
    <message>
        <source>%1, row %2</source>
        <translation>%1, ligne %2</translation>
    </message>
    <message>
        <source>%1: the end of the field %2 cannot be read.</source>
        <translation>%1 : la fin du champ %2 ne peut pas être lue.</translation>
    </message>
    <message>
        <source>%1: the field %2 cannot be read.</source>
        <translation>%1 : le champ %2 ne peut pas être lu.</translation>
    </message>
    <message>
        <source>%1, row %2: left out, it has no identifier.</source>
        <translation>%1, ligne %2 : laissée de côté, elle n&apos;a pas d&apos;identifiant.</translation>
    </message>
    <message>
        <source>%1, row %2: the new album refuses it.</source>
        <translation>%1, ligne %2 : le nouvel album la refuse.</translation>
    </message>
    <message>
        <source>Table %1: the value &apos;%2&apos; is there twice and came over once.</source>
        <translation>Table %1 : la valeur « %2 » s&apos;y trouve deux fois et a été reprise une fois.</translation>
    </message>
    <message>
        <source>Table %1: the name &apos;%2&apos; is there twice; the second became &apos;%3&apos;.</source>
        <translation>Table %1 : le nom « %2 » s&apos;y trouve deux fois ; le second est devenu « %3 ».</translation>
    </message>
    <message>
        <source>Table %1: a row without an identifier of its own became number %2.</source>
        <translation>Table %1 : une ligne sans identifiant propre est devenue le numéro %2.</translation>
    </message>
    <message>
        <source>The new album is being made...</source>
        <translation>Le nouvel album est en cours de création...</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Mot de passe incorrect</translation>
    </message>
    <message>
        <source>Table %1 cannot be taken over.</source>
        <translation>La table %1 ne peut pas être reprise.</translation>
    </message>
    <message>
        <source>Table %1 came over as %2.</source>
        <translation>La table %1 a été reprise sous le nom %2.</translation>
    </message>
    <message>
        <source>Table %1: the field %2 cannot be taken over.</source>
        <translation>Table %1 : le champ %2 ne peut pas être repris.</translation>
    </message>
    <message>
        <source>Table %1: the field %2 came over as %3.</source>
        <translation>Table %1 : le champ %2 a été repris sous le nom %3.</translation>
    </message>
    <message>
        <source>Table %1, field %2: values that cannot be read to their end: %3.</source>
        <translation>Table %1, champ %2 : valeurs impossibles à lire jusqu&apos;au bout : %3.</translation>
    </message>
    <message>
        <source>Please give the password for : %1</source>
        <translation>Mot de passe de l&apos;album : %1</translation>
    </message>
</context>
<context>
    <name>OrganizerKeys</name>
    <message>
        <source>Paragraph organiser</source>
        <translation>Organisation des paragraphes</translation>
    </message>
    <message>
        <source>Select the paragraph above</source>
        <translation>Choisir le paragraphe au-dessus</translation>
    </message>
    <message>
        <source>Select the paragraph below</source>
        <translation>Choisir le paragraphe au-dessous</translation>
    </message>
    <message>
        <source>Move the selected paragraph up</source>
        <translation>Monter le paragraphe choisi</translation>
    </message>
    <message>
        <source>Move the selected paragraph down</source>
        <translation>Descendre le paragraphe choisi</translation>
    </message>
    <message>
        <source>Show the previous chapter</source>
        <translation>Montrer le chapitre précédent</translation>
    </message>
    <message>
        <source>Show the next chapter</source>
        <translation>Montrer le chapitre suivant</translation>
    </message>
    <message>
        <source>Open the selected paragraph in the editor</source>
        <translation>Ouvrir le paragraphe choisi dans l&apos;éditeur</translation>
    </message>
    <message>
        <source>Go back to the editor</source>
        <translation>Revenir à l&apos;éditeur</translation>
    </message>
    <message>
        <source>Open the manual</source>
        <translation>Ouvrir le manuel</translation>
    </message>
    <message>
        <source>Show this sheet</source>
        <translation>Montrer cette feuille</translation>
    </message>
</context>
<context>
    <name>PageContent</name>
    <message>
        <source>Click HERE to create first paragraph of the new chapter &apos;%1&apos;</source>
        <translation>Cliquez ICI pour créer le premier paragraphe du nouveau chapitre &apos;%1&apos;</translation>
    </message>
</context>
<context>
    <name>PageDisplay</name>
    <message numerus="yes">
        <source>%n images found</source>
        <translation>
            <numerusform>%n photo trouvée</numerusform>
            <numerusform>%n photos trouvées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n images left</source>
        <translation>
            <numerusform>%n photo restante</numerusform>
            <numerusform>%n photos restantes</numerusform>
        </translation>
    </message>
    <message>
        <source>The picture files are missing.</source>
        <translation>Les fichiers des photos sont introuvables.</translation>
    </message>
    <message>
        <source>No picture fits.</source>
        <translation>Aucune photo ne convient.</translation>
    </message>
</context>
<context>
    <name>PagePlace</name>
    <message>
        <source>picture %1 of %2</source>
        <translation>photo %1 sur %2</translation>
    </message>
    <message>
        <source>pictures %1-%2 of %3</source>
        <translation>photos %1 à %2 sur %3</translation>
    </message>
    <message>
        <source>paragraph %1 of %2</source>
        <translation>paragraphe %1 sur %2</translation>
    </message>
    <message numerus="yes">
        <source>%n missing</source>
        <comment>picture files</comment>
        <translation>
            <numerusform>%n manquante</numerusform>
            <numerusform>%n manquantes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>a list</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 – Tab goes to a picture, Enter describes it</source>
        <translation>%1 – Tab va à une photo, Entrée la décrit</translation>
    </message>
</context>
<context>
    <name>ParagraphChain</name>
    <message>
        <source>This paragraph is no longer in the album.</source>
        <translation>Ce paragraphe n&apos;est plus dans l&apos;album.</translation>
    </message>
    <message>
        <source>This paragraph has just been changed in another window. Please try again.</source>
        <translation>Ce paragraphe vient d&apos;être modifié dans une autre fenêtre. Veuillez réessayer.</translation>
    </message>
</context>
<context>
    <name>ParagraphEdit</name>
    <message>
        <source>This paragraph</source>
        <translation>Ce paragraphe</translation>
    </message>
    <message>
        <source>The paragraph cannot be saved: %1

Leave without saving?</source>
        <translation>Le paragraphe ne peut pas être enregistré : %1

Quitter sans enregistrer ?</translation>
    </message>
    <message>
        <source>Are you sure you want to DELETE current paragraph ?</source>
        <translation>Voulez-vous vraiment SUPPRIMER ce paragraphe ?</translation>
    </message>
    <message>
        <source>This paragraph was changed in another window after it was opened here.

The other version:
%1

Delete it all the same?</source>
        <translation>Ce paragraphe a été modifié dans une autre fenêtre après son ouverture ici.

L&apos;autre version :
%1

Le supprimer quand même ?</translation>
    </message>
</context>
<context>
    <name>ParagraphMoves</name>
    <message>
        <source>&lt;&lt;Empty Paragraph&gt;&gt;</source>
        <translation>&lt;&lt;Paragraphe vide&gt;&gt;</translation>
    </message>
</context>
<context>
    <name>ParagraphPreview</name>
    <message>
        <source>Click to edit image</source>
        <translation>Cliquez pour modifier la photo</translation>
    </message>
    <message numerus="yes">
        <source>%n images found</source>
        <translation>
            <numerusform>%n photo trouvée</numerusform>
            <numerusform>%n photos trouvées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n images left</source>
        <translation>
            <numerusform>%n photo restante</numerusform>
            <numerusform>%n photos restantes</numerusform>
        </translation>
    </message>
    <message>
        <source>No picture fits.</source>
        <translation>Aucune photo ne convient.</translation>
    </message>
</context>
<context>
    <name>Picture</name>
    <message>
        <source>The file &apos;%1&apos; cannot be deleted: %2</source>
        <translation>Impossible de supprimer le fichier « %1 » : %2</translation>
    </message>
</context>
<context>
    <name>PictureCopying</name>
    <message>
        <source>The picture &quot;%1&quot; cannot be copied: %2</source>
        <translation>La photo « %1 » ne peut pas être copiée : %2</translation>
    </message>
</context>
<context>
    <name>PictureLoading</name>
    <message>
        <source>The folder &apos;%1&apos; is no longer there.</source>
        <translation>Le dossier « %1 » n&apos;est plus là.</translation>
    </message>
</context>
<context>
    <name>Publish</name>
    <message>
        <source>Reading paragraph %1 of %2</source>
        <translation>Lecture du paragraphe %1 sur %2</translation>
    </message>
    <message>
        <source>Picture %1 of %2</source>
        <translation>Photo %1 sur %2</translation>
    </message>
    <message>
        <source>It takes a number from %1 to %2.</source>
        <translation>Il y faut un nombre de %1 à %2.</translation>
    </message>
    <message>
        <source>It exists already; --force replaces it.</source>
        <translation>Il existe déjà ; --force le remplace.</translation>
    </message>
    <message>
        <source>Publish the album&apos;s story, with --as and --to, without windows. The exit status is 3 when the result lacks pictures.</source>
        <translation>Publie le récit de l&apos;album, avec --as et --to, sans fenêtres. Le code de sortie est 3 quand il y manque des photos.</translation>
    </message>
    <message>
        <source>With --publish: &quot;web&quot; for pages in a folder, &quot;page&quot; for one page in a file, &quot;pdf&quot; for a book, &quot;album&quot; for a copy of the album with its pictures in a folder.</source>
        <translation>Avec --publish : « web » pour des pages dans un dossier, « page » pour une page dans un fichier, « pdf » pour un livre, « album » pour une copie de l&apos;album avec ses photos dans un dossier.</translation>
    </message>
    <message>
        <source>With --publish: only this chapter; may be given again.</source>
        <translation>Avec --publish : seulement ce chapitre ; peut être répété.</translation>
    </message>
    <message>
        <source>With --publish: longest edge of the largest pictures in pixels; of a book their dots per inch.</source>
        <translation>Avec --publish : plus grand côté des plus grandes photos en pixels ; d&apos;un livre, leurs points par pouce.</translation>
    </message>
    <message>
        <source>With --publish: how many pictures a paragraph shows at most; %1 when it is not given.</source>
        <translation>Avec --publish : combien de photos un paragraphe montre au plus ; %1 sans cette option.</translation>
    </message>
    <message>
        <source>The folder or file to publish into.</source>
        <translation>Le dossier ou le fichier où publier.</translation>
    </message>
    <message>
        <source>Replace a file that exists.</source>
        <translation>Remplace un fichier existant.</translation>
    </message>
    <message>
        <source>The album.</source>
        <translation>L&apos;album.</translation>
    </message>
    <message>
        <source>--publish needs an album, a kind and a place</source>
        <translation>--publish demande un album, une forme et un lieu</translation>
    </message>
    <message>
        <source>usage: lumenark --publish ALBUM --as web|page|pdf|album --to PLACE [--chapter NAME]... [--size N] [--most N] [--password-file FILE] [--force]</source>
        <translation>usage : lumenark --publish ALBUM --as web|page|pdf|album --to PLACE [--chapter NAME]... [--size N] [--most N] [--password-file FILE] [--force]</translation>
    </message>
</context>
<context>
    <name>PublishedBook</name>
    <message>
        <source>The book &quot;%1&quot; cannot be written: %2</source>
        <translation>Le livre « %1 » ne peut être écrit : %2</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>La mémoire ne suffit pas.</translation>
    </message>
</context>
<context>
    <name>PublishedPages</name>
    <message>
        <source>There is no story to publish: the album has no chapter.</source>
        <translation>Il n&apos;y a pas de récit à publier : l&apos;album n&apos;a pas de chapitre.</translation>
    </message>
    <message>
        <source>The pages cannot be written: %1</source>
        <translation>Les pages ne peuvent être écrites : %1</translation>
    </message>
</context>
<context>
    <name>PublishedStory</name>
    <message>
        <source>There is no chapter &quot;%1&quot;.</source>
        <translation>Il n&apos;y a pas de chapitre « %1 ».</translation>
    </message>
    <message>
        <source>Chapter &quot;%1&quot;, paragraph %2: %3</source>
        <translation>Chapitre « %1 », paragraphe %2 : %3</translation>
    </message>
</context>
<context>
    <name>PublishFolder</name>
    <message>
        <source>Nothing can be written into the folder &quot;%1&quot;: %2</source>
        <translation>Rien ne peut être écrit dans le dossier « %1 » : %2</translation>
    </message>
    <message>
        <source>The list of what was published into the folder &quot;%1&quot; cannot be read. Choose another folder.</source>
        <translation>La liste de ce qui a été publié dans le dossier « %1 » ne peut pas être lue. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be made: %2</source>
        <translation>Le dossier « %1 » ne peut pas être créé : %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a folder.</source>
        <translation>« %1 » n&apos;est pas un dossier.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; holds files of yours. Choose an empty folder, or one that does not exist yet.</source>
        <translation>Le dossier « %1 » contient des fichiers à vous. Choisissez un dossier vide, ou un dossier qui n&apos;existe pas encore.</translation>
    </message>
    <message>
        <source>Something else was published into the folder &quot;%1&quot;. Choose another folder.</source>
        <translation>Autre chose a été publié dans le dossier « %1 ». Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is being published into already.</source>
        <translation>Une publication dans le dossier « %1 » est déjà en cours.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is in the way, and it was not published into the folder. Move it away, or choose another folder.</source>
        <translation>Le fichier « %1 » est à la place d&apos;un nouveau fichier, et il n&apos;a pas été publié dans le dossier. Déplacez-le, ou choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has been changed since it was published. Move it away, or choose another folder.</source>
        <translation>Le fichier « %1 » a été modifié depuis sa publication. Déplacez-le, ou choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>The new files cannot be put in place: %1</source>
        <translation>Les nouveaux fichiers ne peuvent pas être mis en place : %1</translation>
    </message>
</context>
<context>
    <name>PublishReport</name>
    <message>
        <source>Stopped. What was there before is as it was.</source>
        <translation>Arrêté. Ce qui était là est resté tel quel.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pictures were published</source>
        <translation>
            <numerusform>%Ln photo a été publiée</numerusform>
            <numerusform>%Ln photos ont été publiées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln of them made anew.</source>
        <translation>
            <numerusform>dont %Ln faite à neuf.</numerusform>
            <numerusform>dont %Ln faites à neuf.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>et %Ln autre</numerusform>
            <numerusform>et %Ln autres</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln pictures are missing:</source>
        <translation>
            <numerusform>%Ln photo manque :</numerusform>
            <numerusform>%Ln photos manquent :</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln pictures cannot be read:</source>
        <translation>
            <numerusform>%Ln photo ne peut être lue :</numerusform>
            <numerusform>%Ln photos ne peuvent être lues :</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>Tells stories with photographs.</source>
        <translation>Raconte des histoires avec des photographies.</translation>
    </message>
    <message>
        <source>The album to open; the last one when not given.</source>
        <translation>L&apos;album à ouvrir ; le dernier quand il n&apos;est pas indiqué.</translation>
    </message>
</context>
<context>
    <name>QtDialogs</name>
    <message>
        <source>&apos;%1&apos; exists already. Do you want to replace it?</source>
        <translation>« %1 » existe déjà. Voulez-vous le remplacer&#xa0;?</translation>
    </message>
</context>
<context>
    <name>RepairReport</name>
    <message>
        <source>before repair</source>
        <translation>avant réparation</translation>
    </message>
    <message>
        <source>Found again</source>
        <translation>Retrouvé</translation>
    </message>
    <message>
        <source>The links of the album are in order; nothing was changed.</source>
        <translation>Les liens de l&apos;album sont en ordre ; rien n&apos;a été changé.</translation>
    </message>
    <message>
        <source>Chapters and paragraphs given a new number, theirs being out of range: %1</source>
        <translation>Chapitres et paragraphes renumérotés, leur numéro étant hors limites : %1</translation>
    </message>
    <message>
        <source>Chapters linked anew: %1</source>
        <translation>Chapitres reliés de nouveau : %1</translation>
    </message>
    <message>
        <source>Chapters given their right first paragraph: %1</source>
        <translation>Chapitres ayant retrouvé leur premier paragraphe : %1</translation>
    </message>
    <message>
        <source>Paragraphs without a chapter that have one now: %1</source>
        <translation>Paragraphes sans chapitre qui en ont un maintenant : %1</translation>
    </message>
    <message>
        <source>Paragraphs linked anew: %1</source>
        <translation>Paragraphes reliés de nouveau : %1</translation>
    </message>
    <message>
        <source>The album as it was before is kept in &apos;%1&apos;.</source>
        <translation>L&apos;album tel qu&apos;il était est gardé dans « %1 ».</translation>
    </message>
</context>
<context>
    <name>SheetModel</name>
    <message>
        <source>linked</source>
        <translation>liée</translation>
    </message>
    <message>
        <source>not indexed</source>
        <translation>non indexée</translation>
    </message>
    <message>
        <source>file is missing</source>
        <translation>fichier introuvable</translation>
    </message>
</context>
<context>
    <name>SidecarWriter</name>
    <message>
        <source>The present sidecar cannot be taken over whole, so it is left as it is.</source>
        <translation>Le fichier XMP présent ne peut pas être repris en entier ; il reste tel quel.</translation>
    </message>
</context>
<context>
    <name>StarterLabels</name>
    <message>
        <source>Family</source>
        <translation>Famille</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Événement</translation>
    </message>
    <message>
        <source>First person</source>
        <translation>Première personne</translation>
    </message>
    <message>
        <source>Second person</source>
        <translation>Deuxième personne</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Occasion</source>
        <translation>Occasion</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Person</source>
        <translation>Personne</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>Activité</translation>
    </message>
    <message>
        <source>Mood</source>
        <translation>Humeur</translation>
    </message>
    <message>
        <source>Season</source>
        <translation>Saison</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Journeys</source>
        <translation>Voyages</translation>
    </message>
    <message>
        <source>Journey</source>
        <translation>Voyage</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Pays</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Sujet</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Temps qu&apos;il fait</translation>
    </message>
    <message>
        <source>Time of Day</source>
        <translation>Moment du jour</translation>
    </message>
    <message>
        <source>Nature</source>
        <translation>Nature</translation>
    </message>
    <message>
        <source>First species</source>
        <translation>Première espèce</translation>
    </message>
    <message>
        <source>Second species</source>
        <translation>Deuxième espèce</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Région</translation>
    </message>
    <message>
        <source>Habitat</source>
        <translation>Habitat</translation>
    </message>
    <message>
        <source>Species</source>
        <translation>Espèce</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Comportement</translation>
    </message>
    <message>
        <source>Stage</source>
        <translation>Stade</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Lumière</translation>
    </message>
</context>
<context>
    <name>StayAwake</name>
    <message>
        <source>A story is on show</source>
        <translation>Une histoire est à l&apos;écran</translation>
    </message>
</context>
<context>
    <name>StoryEditing</name>
    <message>
        <source>There is no paragraph to link pictures to.</source>
        <translation>Il n&apos;y a pas de paragraphe auquel lier des photos.</translation>
    </message>
    <message>
        <source>Point at a picture first, or show it large.</source>
        <translation>Pointez d&apos;abord une photo, ou montrez-la en grand.</translation>
    </message>
    <message>
        <source>No longer linked to the paragraph</source>
        <translation>N&apos;est plus liée au paragraphe</translation>
    </message>
    <message>
        <source>Linked to the paragraph</source>
        <translation>Liée au paragraphe</translation>
    </message>
</context>
<context>
    <name>StoryReader</name>
    <message>
        <source>Click to index picture</source>
        <translation>Cliquez pour indexer la photo</translation>
    </message>
    <message>
        <source>Click to edit image</source>
        <translation>Cliquez pour modifier la photo</translation>
    </message>
    <message>
        <source>Timer On</source>
        <translation>Minuterie en marche</translation>
    </message>
    <message>
        <source>Timer Off</source>
        <translation>Minuterie arrêtée</translation>
    </message>
    <message>
        <source>Found Pictures</source>
        <translation>Photos trouvées</translation>
    </message>
</context>
<context>
    <name>TravellingAlbum</name>
    <message>
        <source>The folder &quot;%1&quot; holds files that the album itself uses. Choose another folder.</source>
        <translation>Le dossier « %1 » contient des fichiers que l&apos;album lui-même utilise. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>The album has no story yet, so that there are no pictures that it shows.</source>
        <translation>L&apos;album n&apos;a pas encore d&apos;histoire ; elle ne montre donc aucune photo.</translation>
    </message>
    <message>
        <source>The album &quot;%1&quot; is being changed, or a change of it broke off. Open it and close it, then try again.</source>
        <translation>L&apos;album « %1 » est en cours de modification, ou une modification de cet album a été interrompue. Ouvrez-le et fermez-le, puis réessayez.</translation>
    </message>
</context>
<context>
    <name>UndoHistory</name>
    <message>
        <source>Change</source>
        <translation>Modification</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pictures</source>
        <translation>
            <numerusform>%Ln photo</numerusform>
            <numerusform>%Ln photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln paragraphs</source>
        <translation>
            <numerusform>%Ln paragraphe</numerusform>
            <numerusform>%Ln paragraphes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UndoMenu</name>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Annuler : %1</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Rétablir : %1</translation>
    </message>
</context>
<context>
    <name>UndoStep</name>
    <message>
        <source>Move Chapter</source>
        <translation>Déplacer le chapitre</translation>
    </message>
    <message>
        <source>Create Chapter</source>
        <translation>Créer le chapitre</translation>
    </message>
    <message>
        <source>Rename Chapter to</source>
        <translation>Renommer le chapitre en</translation>
    </message>
    <message>
        <source>Delete Chapter</source>
        <translation>Supprimer le chapitre</translation>
    </message>
    <message>
        <source>Change Settings</source>
        <translation>Modifier les réglages</translation>
    </message>
    <message>
        <source>Set Delay of Autoview</source>
        <translation>Régler le délai du défilement</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>Choisir le dossier</translation>
    </message>
    <message>
        <source>Repair Album</source>
        <translation>Réparer l&apos;album</translation>
    </message>
    <message>
        <source>Save Paragraph</source>
        <translation>Enregistrer le paragraphe</translation>
    </message>
    <message>
        <source>Create Paragraph</source>
        <translation>Créer un paragraphe</translation>
    </message>
    <message>
        <source>Create Paragraph after</source>
        <translation>Créer un paragraphe après</translation>
    </message>
    <message>
        <source>Delete Paragraph</source>
        <translation>Supprimer le paragraphe</translation>
    </message>
    <message>
        <source>Move Paragraph</source>
        <translation>Déplacer le paragraphe</translation>
    </message>
    <message numerus="yes">
        <source>Link %n Pictures</source>
        <translation>
            <numerusform>Lier %n photo</numerusform>
            <numerusform>Lier %n photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlink %n Pictures</source>
        <translation>
            <numerusform>Délier %n photo</numerusform>
            <numerusform>Délier %n photos</numerusform>
        </translation>
    </message>
    <message>
        <source>Order Linked Pictures</source>
        <translation>Ordonner les photos liées</translation>
    </message>
    <message>
        <source>Describe</source>
        <translation>Décrire</translation>
    </message>
    <message>
        <source>Take out</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Describe Together</source>
        <translation>Décrire ensemble</translation>
    </message>
    <message>
        <source>Take Descriptions</source>
        <translation>Reprendre les descriptions</translation>
    </message>
    <message>
        <source>Add Value</source>
        <translation>Ajouter la valeur</translation>
    </message>
    <message>
        <source>Delete Value</source>
        <translation>Supprimer la valeur</translation>
    </message>
    <message>
        <source>Replace %1 by %2</source>
        <translation>Remplacer %1 par %2</translation>
    </message>
    <message>
        <source>Load Pictures</source>
        <translation>Charger les photos</translation>
    </message>
    <message>
        <source>Reload Moved Pictures</source>
        <translation>Recharger les photos déplacées</translation>
    </message>
    <message>
        <source>Edit Labels</source>
        <translation>Modifier les libellés</translation>
    </message>
    <message>
        <source>Take from Files</source>
        <translation>Reprendre des fichiers</translation>
    </message>
    <message>
        <source>Take Found Pictures</source>
        <translation>Reprendre les photos retrouvées</translation>
    </message>
    <message>
        <source>Take Back Chapters</source>
        <translation>Reprendre des chapitres</translation>
    </message>
</context>
<context>
    <name>UndoSteps</name>
    <message>
        <source>Undone: %1</source>
        <translation>Annulé : %1</translation>
    </message>
    <message numerus="yes">
        <source>%n steps undone</source>
        <translation>
            <numerusform>%n étape annulée</numerusform>
            <numerusform>%n étapes annulées</numerusform>
        </translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Rétabli : %1</translation>
    </message>
    <message numerus="yes">
        <source>%n steps redone</source>
        <translation>
            <numerusform>%n étape rétablie</numerusform>
            <numerusform>%n étapes rétablies</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 “%2”</source>
        <translation>%1 « %2 »</translation>
    </message>
    <message>
        <source>Another program has changed the album. What was done before that cannot be undone any more.</source>
        <translation>Un autre programme a modifié l&apos;album. Ce qui a été fait auparavant ne peut plus être annulé.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Il n&apos;y a rien à annuler.</translation>
    </message>
    <message>
        <source>What was done last is too large to be undone.</source>
        <translation>Ce qui a été fait en dernier est trop volumineux pour être annulé.</translation>
    </message>
</context>
<context>
    <name>UndoTurn</name>
    <message>
        <source>The album is being changed...</source>
        <translation>L&apos;album est en cours de modification...</translation>
    </message>
    <message>
        <source>Stopped: nothing was changed</source>
        <translation>Arrêté : rien n&apos;a été changé</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Il n&apos;y a rien à rétablir.</translation>
    </message>
</context>
<context>
    <name>ValueEntry</name>
    <message>
        <source>Caracteristics must begin with a letter or a figure</source>
        <translation>Les caractéristiques doivent commencer par une lettre ou un chiffre</translation>
    </message>
</context>
<context>
    <name>ViewerKey</name>
    <message>
        <source>Next paragraph</source>
        <translation>Paragraphe suivant</translation>
    </message>
    <message>
        <source>Previous paragraph</source>
        <translation>Paragraphe précédent</translation>
    </message>
    <message>
        <source>Next pictures</source>
        <translation>Photos suivantes</translation>
    </message>
    <message>
        <source>Previous pictures</source>
        <translation>Photos précédentes</translation>
    </message>
    <message>
        <source>Next chapter</source>
        <translation>Chapitre suivant</translation>
    </message>
    <message>
        <source>Beginning of the chapter</source>
        <translation>Début du chapitre</translation>
    </message>
    <message>
        <source>More and smaller pictures</source>
        <translation>Plus de photos, plus petites</translation>
    </message>
    <message>
        <source>Fewer and bigger pictures</source>
        <translation>Moins de photos, plus grandes</translation>
    </message>
    <message>
        <source>Autoview on and off</source>
        <translation>Défilement automatique en marche ou arrêté</translation>
    </message>
    <message>
        <source>Edit the paragraph</source>
        <translation>Modifier le paragraphe</translation>
    </message>
    <message>
        <source>Full screen, and back</source>
        <translation>Plein écran, et retour</translation>
    </message>
    <message>
        <source>Show or hide where you are</source>
        <translation>Dire ou taire où vous en êtes</translation>
    </message>
    <message>
        <source>Press the button or describe the picture that Tab went to</source>
        <translation>Appuyer sur le bouton ou décrire la photo où Tab est allé</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>One large picture: its pixels, and back</source>
        <translation>Une photo en grand : ses pixels, et retour</translation>
    </message>
    <message>
        <source>One large picture: another part of it</source>
        <translation>Une photo en grand : une autre partie</translation>
    </message>
    <message>
        <source>Find pictures</source>
        <translation>Chercher des photos</translation>
    </message>
    <message>
        <source>Viewer</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>This sheet of keys</source>
        <translation>Cette liste des touches</translation>
    </message>
    <message>
        <source>Link to this paragraph, or unlink: the large picture, or the one under the pointer</source>
        <translation>Lier à ce paragraphe, ou délier : la grande photo, ou celle sous le pointeur</translation>
    </message>
</context>
<context>
    <name>WebPages</name>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>Chapters</source>
        <translation>Chapitres</translation>
    </message>
    <message>
        <source>Previous chapter</source>
        <translation>Chapitre précédent</translation>
    </message>
    <message>
        <source>Next chapter</source>
        <translation>Chapitre suivant</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>Photo précédente</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>Photo suivante</translation>
    </message>
    <message>
        <source>Slide show</source>
        <translation>Diaporama</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Large picture</source>
        <translation>Photo en grand</translation>
    </message>
    <message>
        <source>This picture is missing.</source>
        <translation>Cette photo manque.</translation>
    </message>
    <message>
        <source>Nothing has been written here yet.</source>
        <translation>Rien n&apos;a encore été écrit ici.</translation>
    </message>
    <message>
        <source>Picture %1 of %2</source>
        <translation>Photo %1 sur %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pictures</source>
        <translation>
            <numerusform>%Ln photo</numerusform>
            <numerusform>%Ln photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more pictures</source>
        <translation>
            <numerusform>et %Ln autre photo</numerusform>
            <numerusform>et %Ln autres photos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WorkProgress</name>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avancement</translation>
    </message>
</context>
<context>
    <name>frmAbout</name>
    <message>
        <source>Tells stories with photographs: an album of pictures that lie anywhere on your disk, and the chapters and paragraphs that you write about them.</source>
        <translation>Raconte des histoires avec des photographies : un album de photos qui se trouvent n&apos;importe où sur votre disque, et les chapitres et paragraphes que vous écrivez sur elles.</translation>
    </message>
    <message>
        <source>Free software under the MIT licence. It comes without any warranty; keep copies of the albums and pictures that you love.</source>
        <translation>Logiciel libre sous licence MIT, fourni sans aucune garantie ; gardez des copies des albums et des photos que vous aimez.</translation>
    </message>
    <message>
        <source>&amp;System Info...</source>
        <translation>Infos &amp;système...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>System Information Is Unavailable At This Time</source>
        <translation>Les informations système ne sont pas disponibles pour le moment</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>À propos de %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
</context>
<context>
    <name>frmCDBuffer</name>
    <message>
        <source>Set CD-ROM Buffer</source>
        <translation>Régler le tampon CD-ROM</translation>
    </message>
    <message>
        <source>Ckeck this option if you want Lumenark to copy on hard disk all pictures showed from CD-ROMS. Lumenark will keep those pictures on the hard disk as long as there is enough free space on it. Using this feature lets you see pictures from different CD-ROMS without having to play disk-jokey.</source>
        <translation>Cochez cette option si vous voulez que Lumenark copie sur le disque dur toutes les photos affichées depuis des CD-ROM. Lumenark garde ces photos sur le disque dur tant qu&apos;il y reste assez de place. Vous pouvez ainsi voir des photos de plusieurs CD-ROM sans jouer au disc-jockey.</translation>
    </message>
    <message>
        <source>Bufferize CD-ROM pictures</source>
        <translation>Mettre en tampon les photos des CD-ROM</translation>
    </message>
    <message>
        <source>CD-ROM reader is on drive :</source>
        <translation>Le lecteur de CD-ROM est l&apos;unité :</translation>
    </message>
    <message>
        <source>Drive of the CD-ROM reader</source>
        <translation>Unité du lecteur de CD-ROM</translation>
    </message>
    <message>
        <source>Pictures are kept in folder :</source>
        <translation>Les photos sont gardées dans le dossier :</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
</context>
<context>
    <name>frmEditImage</name>
    <message>
        <source>Edit and Index Picture</source>
        <translation>Modifier et indexer la photo</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Légende</translation>
    </message>
    <message>
        <source>Type here the legend of the picture</source>
        <translation>Saisissez ici la légende de la photo</translation>
    </message>
    <message>
        <source>Delete Picture</source>
        <translation>Supprimer la photo</translation>
    </message>
    <message>
        <source>Click to add values to the caracteristics</source>
        <translation>Cliquez pour ajouter des valeurs aux caractéristiques</translation>
    </message>
    <message>
        <source>Edit &amp;Tables</source>
        <translation>Modifier les &amp;tables</translation>
    </message>
    <message>
        <source>Edit next image in selection</source>
        <translation>Modifier la photo suivante de la sélection</translation>
    </message>
    <message>
        <source>Next Picture</source>
        <translation>Photo suivante</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>The picture could not be saved. Leave without saving ?</source>
        <translation>La photo n&apos;a pas pu être enregistrée. Quitter sans enregistrer ?</translation>
    </message>
    <message>
        <source>The caracteristics of this album have no names yet.</source>
        <translation>Les caractéristiques de cet album n&apos;ont pas encore de nom.</translation>
    </message>
    <message>
        <source>Edit the filter labels</source>
        <translation>Modifier les libellés du filtre</translation>
    </message>
    <message>
        <source>Name the Caracteristics</source>
        <translation>Nommer les caractéristiques</translation>
    </message>
    <message>
        <source>This picture</source>
        <translation>Cette photo</translation>
    </message>
    <message>
        <source>Internal Error : Image File %1 not found</source>
        <translation>Erreur interne : fichier image %1 introuvable</translation>
    </message>
    <message>
        <source>Do you also want to delete the file %1 ?</source>
        <translation>Voulez-vous aussi supprimer le fichier %1 ?</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Take the values of the picture described last (Ctrl+D); Ctrl+Space takes that of one field</source>
        <translation>Reprendre les valeurs de la photo décrite en dernier (Ctrl+D) ; Ctrl+Espace reprend celle d&apos;un champ</translation>
    </message>
    <message>
        <source>As Before</source>
        <translation>Comme avant</translation>
    </message>
    <message>
        <source>Edit the image before this one (Alt+P)</source>
        <translation>Décrire la photo précédente (Alt+P)</translation>
    </message>
    <message>
        <source>Previous Picture</source>
        <translation>Photo précédente</translation>
    </message>
    <message>
        <source>The file goes to the desktop&apos;s trash, or where there is none, it is deleted for good. Undo brings back the album&apos;s entry, not the file.</source>
        <translation>Le fichier va dans la corbeille du bureau ; s&apos;il n&apos;y en a pas, il est supprimé pour de bon. Annuler ramène l&apos;entrée de l&apos;album, pas le fichier.</translation>
    </message>
</context>
<context>
    <name>frmEditLabels</name>
    <message>
        <source>Edit Labels</source>
        <translation>Modifier les libellés</translation>
    </message>
    <message>
        <source>Names of the groups</source>
        <translation>Noms des groupes</translation>
    </message>
    <message>
        <source>Names of the columns</source>
        <translation>Noms des colonnes</translation>
    </message>
    <message>
        <source>Name of group 1</source>
        <translation>Nom du groupe 1</translation>
    </message>
    <message>
        <source>Name of group 2</source>
        <translation>Nom du groupe 2</translation>
    </message>
    <message>
        <source>Name of group 3</source>
        <translation>Nom du groupe 3</translation>
    </message>
    <message>
        <source>Name of group 4</source>
        <translation>Nom du groupe 4</translation>
    </message>
    <message>
        <source>Name of column 1</source>
        <translation>Nom de la colonne 1</translation>
    </message>
    <message>
        <source>Name of column 4</source>
        <translation>Nom de la colonne 4</translation>
    </message>
    <message>
        <source>Name of column 10</source>
        <translation>Nom de la colonne 10</translation>
    </message>
    <message>
        <source>Name of column 2</source>
        <translation>Nom de la colonne 2</translation>
    </message>
    <message>
        <source>Name of column 5</source>
        <translation>Nom de la colonne 5</translation>
    </message>
    <message>
        <source>Name of column 11</source>
        <translation>Nom de la colonne 11</translation>
    </message>
    <message>
        <source>Name of column 3</source>
        <translation>Nom de la colonne 3</translation>
    </message>
    <message>
        <source>Name of column 6</source>
        <translation>Nom de la colonne 6</translation>
    </message>
    <message>
        <source>Name of column 12</source>
        <translation>Nom de la colonne 12</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>One of these labels</source>
        <translation>Une de ces étiquettes</translation>
    </message>
    <message>
        <source>Fill the empty boxes with names that suit many albums</source>
        <translation>Remplir les cases vides avec des noms qui conviennent à beaucoup d&apos;albums</translation>
    </message>
    <message>
        <source>Propose Names</source>
        <translation>Proposer des noms</translation>
    </message>
</context>
<context>
    <name>frmEditParagraph</name>
    <message>
        <source>Edit Paragraph</source>
        <translation>Modifier le paragraphe</translation>
    </message>
    <message>
        <source>Click to edit paragraph text</source>
        <translation>Cliquez pour modifier le texte du paragraphe</translation>
    </message>
    <message>
        <source>Paragraph Text</source>
        <translation>Texte du paragraphe</translation>
    </message>
    <message>
        <source>Insert caracteristic name into the paragraph text</source>
        <translation>Insérer le nom d&apos;une caractéristique dans le texte du paragraphe</translation>
    </message>
    <message>
        <source>Insert Caracteristic</source>
        <translation>Insérer une caractéristique</translation>
    </message>
    <message>
        <source>Cancel Insert</source>
        <translation>Annuler l&apos;insertion</translation>
    </message>
    <message>
        <source>Paragraph text</source>
        <translation>Texte du paragraphe</translation>
    </message>
    <message>
        <source>Preview of the paragraph text</source>
        <translation>Aperçu du texte du paragraphe</translation>
    </message>
    <message>
        <source>Click on caracteristic to insert it</source>
        <translation>Cliquez une caractéristique pour l&apos;insérer</translation>
    </message>
    <message>
        <source>Markers to insert</source>
        <translation>Marques à insérer</translation>
    </message>
    <message>
        <source>Select and preview pictures associated to this paragraph</source>
        <translation>Choisir et voir les photos associées à ce paragraphe</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Show next image</source>
        <translation>Montrer la photo suivante</translation>
    </message>
    <message>
        <source>Next Picture</source>
        <translation>Photo suivante</translation>
    </message>
    <message>
        <source>Preview shows the pictures of this paragraph here.
Picture files dropped here are linked to it.</source>
        <translation>L&apos;aperçu montre ici les photos de ce paragraphe.
Les fichiers de photos déposés ici lui sont liés.</translation>
    </message>
    <message>
        <source>Link Picture to Paragraph</source>
        <translation>Lier la photo au paragraphe</translation>
    </message>
    <message>
        <source>Go to first paragraph of chapter</source>
        <translation>Aller au premier paragraphe du chapitre</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Premier</translation>
    </message>
    <message>
        <source>Go to previous paragraph</source>
        <translation>Aller au paragraphe précédent</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Go to next paragraph</source>
        <translation>Aller au paragraphe suivant</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Go to last paragraph of chapter</source>
        <translation>Aller au dernier paragraphe du chapitre</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Dernier</translation>
    </message>
    <message>
        <source>Create a new paragraph after the current one</source>
        <translation>Créer un nouveau paragraphe après celui-ci</translation>
    </message>
    <message>
        <source>Create Next</source>
        <translation>Créer le suivant</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Organize</source>
        <translation>Organiser</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Edit Paragraph from Chapter &apos;%1&apos;</source>
        <translation>Modifier un paragraphe du chapitre &apos;%1&apos;</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Find pictures of the album and link them to this paragraph (Ctrl+F)</source>
        <translation>Chercher des photos de l&apos;album et les lier à ce paragraphe (Ctrl+F)</translation>
    </message>
    <message>
        <source>Find Pictures</source>
        <translation>Chercher des photos</translation>
    </message>
    <message>
        <source>Put the linked pictures in order, or take some out (Ctrl+L)</source>
        <translation>Mettre les photos liées en ordre, ou en retirer (Ctrl+L)</translation>
    </message>
    <message>
        <source>Linked Pictures</source>
        <translation>Photos liées</translation>
    </message>
</context>
<context>
    <name>frmEditTables</name>
    <message>
        <source>Edit Tables</source>
        <translation>Modifier les tables</translation>
    </message>
    <message>
        <source>Choose the table you want to update</source>
        <translation>Choisissez la table à mettre à jour</translation>
    </message>
    <message>
        <source>Click to select table to edit</source>
        <translation>Cliquez pour choisir la table à modifier</translation>
    </message>
    <message>
        <source>Caracteristic1</source>
        <translation>Caractéristique1</translation>
    </message>
    <message>
        <source>Caracteristic2</source>
        <translation>Caractéristique2</translation>
    </message>
    <message>
        <source>Caracteristic3</source>
        <translation>Caractéristique3</translation>
    </message>
    <message>
        <source>Column 1</source>
        <translation>Colonne 1</translation>
    </message>
    <message>
        <source>Column 2</source>
        <translation>Colonne 2</translation>
    </message>
    <message>
        <source>Column 3</source>
        <translation>Colonne 3</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valeurs</translation>
    </message>
    <message>
        <source>Add a new value to the table</source>
        <translation>Ajouter une valeur à la table</translation>
    </message>
    <message>
        <source>Add New</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Edit the selected value</source>
        <translation>Modifier la valeur choisie</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Delete the selected value from the table</source>
        <translation>Supprimer de la table la valeur choisie</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Edit the filter labels</source>
        <translation>Modifier les libellés du filtre</translation>
    </message>
    <message>
        <source>Edit Labels</source>
        <translation>Modifier les libellés</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Caracteristic%1</source>
        <translation>Caractéristique%1</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Colonne %1</translation>
    </message>
    <message>
        <source>Please Enter Parameter&apos;s Name</source>
        <translation>Saisissez le nom de la valeur</translation>
    </message>
    <message>
        <source>Sorry, you can&apos;t delete the special markers</source>
        <translation>Désolé, les marques spéciales ne peuvent pas être supprimées</translation>
    </message>
    <message>
        <source>Sorry, you can&apos;t modify the special markers</source>
        <translation>Désolé, les marques spéciales ne peuvent pas être modifiées</translation>
    </message>
    <message>
        <source>%1 pictures and paragraphs changed</source>
        <translation>%1 photos et paragraphes modifiés</translation>
    </message>
    <message>
        <source>Pictures changed: %1, paragraphs changed: %2</source>
        <translation>Photos modifiées : %1, paragraphes modifiés : %2</translation>
    </message>
    <message>
        <source>Stopped: nothing was changed</source>
        <translation>Opération interrompue : rien n&apos;a été modifié</translation>
    </message>
    <message>
        <source>Replace all occurences of %1 by :</source>
        <translation>Remplacer partout %1 par :</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures still have &apos;%1&apos;</source>
        <translation>
            <numerusform>%n photo a encore « %1 »</numerusform>
            <numerusform>%n photos ont encore « %1 »</numerusform>
        </translation>
    </message>
    <message>
        <source>&apos;%1&apos; and &apos;%2&apos; are one value now.</source>
        <translation>« %1 » et « %2 » sont maintenant une seule valeur.</translation>
    </message>
    <message>
        <source>Sorted</source>
        <translation>Triées</translation>
    </message>
    <message>
        <source>Show the values in alphabetical order; the table keeps its own</source>
        <translation>Montrer les valeurs par ordre alphabétique ; la table garde le sien</translation>
    </message>
</context>
<context>
    <name>frmFullScreen</name>
    <message>
        <source>Lumenark</source>
        <translation>Lumenark</translation>
    </message>
</context>
<context>
    <name>frmLoadFiles</name>
    <message>
        <source>Load Picture Files</source>
        <translation>Charger des fichiers de photos</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Indicates here the picture file types you want to load</source>
        <translation>Indiquez ici les types de fichiers de photos à charger</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>Types de fichiers</translation>
    </message>
    <message>
        <source>Choose the directory containing the pictures to load</source>
        <translation>Choisissez le dossier qui contient les photos à charger</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>Suivi</translation>
    </message>
    <message>
        <source>Load the selected pictures in the database</source>
        <translation>Charger les photos choisies dans la base de données</translation>
    </message>
    <message>
        <source>Load Pictures</source>
        <translation>Charger des photos</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Fermer</translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) selected</source>
        <translation>
            <numerusform>%n photo choisie</numerusform>
            <numerusform>%n photos choisies</numerusform>
        </translation>
    </message>
    <message>
        <source>Loading pictures...</source>
        <translation>Chargement des photos...</translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) loaded</source>
        <translation>
            <numerusform>%n photo chargée</numerusform>
            <numerusform>%n photos chargées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new</source>
        <translation>
            <numerusform>%n nouvelle</numerusform>
            <numerusform>%n nouvelles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n there already</source>
        <translation>
            <numerusform>%n déjà là</numerusform>
            <numerusform>%n déjà là</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures of other kinds left out</source>
        <translation>
            <numerusform>%n photo d&apos;autre sorte laissée de côté</numerusform>
            <numerusform>%n photos d&apos;autres sortes laissées de côté</numerusform>
        </translation>
    </message>
    <message>
        <source>Usual picture file types</source>
        <translation>Types usuels de fichiers de photos</translation>
    </message>
    <message>
        <source>Load the pictures of the folders in this folder too</source>
        <translation>Charger aussi les photos des dossiers contenus dans ce dossier</translation>
    </message>
    <message>
        <source>With the folders inside</source>
        <translation>Avec les dossiers contenus</translation>
    </message>
    <message>
        <source>Describe the pictures that were new, many at once</source>
        <translation>Décrire les nouvelles photos, plusieurs à la fois</translation>
    </message>
    <message>
        <source>Describe New Pictures</source>
        <translation>Décrire les nouvelles photos</translation>
    </message>
    <message>
        <source>Load only the files that are marked in the list</source>
        <translation>Charger seulement les fichiers marqués dans la liste</translation>
    </message>
    <message>
        <source>Load Marked</source>
        <translation>Charger les marqués</translation>
    </message>
    <message>
        <source>Take what the files say</source>
        <translation>Reprendre ce que disent les fichiers</translation>
    </message>
    <message>
        <source>After loading, show which captions, keywords and dates the new pictures&apos; files hold, to take them into the album</source>
        <translation>Après le chargement, montrer quels textes, mots-clés et dates contiennent les fichiers des nouvelles photos, pour les reprendre dans l&apos;album</translation>
    </message>
</context>
<context>
    <name>frmOpenChapter</name>
    <message>
        <source>Soft Transitions in Autoview</source>
        <translation>Transitions douces en défilement</translation>
    </message>
    <message>
        <source>Choose the chapter you want to read</source>
        <translation>Choisissez le chapitre à lire</translation>
    </message>
    <message>
        <source>Click to create a new photo-album</source>
        <translation>Cliquez pour créer un nouvel album de photos</translation>
    </message>
    <message>
        <source>Create Album</source>
        <translation>Créer un album</translation>
    </message>
    <message>
        <source>Click to open a photo-album</source>
        <translation>Cliquez pour ouvrir un album de photos</translation>
    </message>
    <message>
        <source>Open Album</source>
        <translation>Ouvrir un album</translation>
    </message>
    <message>
        <source>Click to glue new pictures into your album</source>
        <translation>Cliquez pour coller de nouvelles photos dans votre album</translation>
    </message>
    <message>
        <source>Load Pictures</source>
        <translation>Charger des photos</translation>
    </message>
    <message>
        <source>Click to index the pictures</source>
        <translation>Cliquez pour indexer les photos</translation>
    </message>
    <message>
        <source>Index Pictures</source>
        <translation>Indexer les photos</translation>
    </message>
    <message>
        <source>Please first OPEN or CREATE an Album</source>
        <translation>Veuillez d&apos;abord OUVRIR ou CRÉER un album</translation>
    </message>
    <message>
        <source>Double click to read chapter</source>
        <translation>Double-cliquez pour lire le chapitre</translation>
    </message>
    <message>
        <source>Chapters</source>
        <translation>Chapitres</translation>
    </message>
    <message>
        <source>Click to read selected chapter</source>
        <translation>Cliquez pour lire le chapitre choisi</translation>
    </message>
    <message>
        <source>Read Chapter</source>
        <translation>Lire le chapitre</translation>
    </message>
    <message>
        <source>Click to create a new chapter</source>
        <translation>Cliquez pour créer un nouveau chapitre</translation>
    </message>
    <message>
        <source>Create New Chapter</source>
        <translation>Créer un nouveau chapitre</translation>
    </message>
    <message>
        <source>Click to move selected chapter one line up</source>
        <translation>Cliquez pour monter d&apos;une ligne le chapitre choisi</translation>
    </message>
    <message>
        <source>MoveUp</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Click to move selected chapter one line down</source>
        <translation>Cliquez pour descendre d&apos;une ligne le chapitre choisi</translation>
    </message>
    <message>
        <source>MoveDown</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Recent Albums</source>
        <translation>Albums récents</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>Chapitre</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Create New Album</source>
        <translation>Créer un nouvel album</translation>
    </message>
    <message>
        <source>Exit (ESC)</source>
        <translation>Quitter (Échap)</translation>
    </message>
    <message>
        <source>Rename Chapter</source>
        <translation>Renommer le chapitre</translation>
    </message>
    <message>
        <source>Delete Chapter</source>
        <translation>Supprimer le chapitre</translation>
    </message>
    <message>
        <source>Load Picture Files in Album</source>
        <translation>Charger des fichiers de photos dans l&apos;album</translation>
    </message>
    <message>
        <source>Reload Moved Pictures</source>
        <translation>Retrouver les photos déplacées</translation>
    </message>
    <message>
        <source>Index Undefined Pictures</source>
        <translation>Indexer les photos non définies</translation>
    </message>
    <message>
        <source>Index Undefined Pictures from Folder</source>
        <translation>Indexer les photos non définies d&apos;un dossier</translation>
    </message>
    <message>
        <source>Display Pictures at Random</source>
        <translation>Afficher des photos au hasard</translation>
    </message>
    <message>
        <source>Display Pictures from Folder</source>
        <translation>Afficher les photos d&apos;un dossier</translation>
    </message>
    <message>
        <source>Set CD-ROM Buffer</source>
        <translation>Régler le tampon CD-ROM</translation>
    </message>
    <message>
        <source>Repair Album</source>
        <translation>Réparer l&apos;album</translation>
    </message>
    <message>
        <source>Set Album Password</source>
        <translation>Mot de passe de l&apos;album</translation>
    </message>
    <message>
        <source>Lumenark Help (F1)</source>
        <translation>Aide de Lumenark (F1)</translation>
    </message>
    <message>
        <source>About Lumenark</source>
        <translation>À propos de Lumenark</translation>
    </message>
    <message>
        <source>Click to index them</source>
        <translation>Cliquez pour les indexer</translation>
    </message>
    <message>
        <source>Click to look for them</source>
        <translation>Cliquez pour les chercher</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Read Full Screen</source>
        <translation>Lire en plein écran</translation>
    </message>
    <message>
        <source>Move Chapter Up</source>
        <translation>Monter le chapitre</translation>
    </message>
    <message>
        <source>Move Chapter Down</source>
        <translation>Descendre le chapitre</translation>
    </message>
    <message>
        <source>Edit Tables</source>
        <translation>Modifier les tables</translation>
    </message>
    <message>
        <source>Edit Labels</source>
        <translation>Modifier les libellés</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Size of the Viewer&apos;s Text</source>
        <translation>Taille du texte de la visionneuse</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Find Pictures</source>
        <translation>Chercher des photos</translation>
    </message>
    <message>
        <source>Or look at a finished story. It is copied to your documents, so change what you like in it.</source>
        <translation>Ou regardez une histoire finie, en anglais. Elle est copiée dans vos documents : changez-y ce que vous voulez.</translation>
    </message>
    <message>
        <source>Click to open the story that comes with the program</source>
        <translation>Cliquez pour ouvrir l&apos;histoire fournie avec le programme</translation>
    </message>
    <message>
        <source>Open Sample Story</source>
        <translation>Ouvrir l&apos;histoire d&apos;exemple</translation>
    </message>
    <message>
        <source>What to do first</source>
        <translation>Par où commencer</translation>
    </message>
    <message>
        <source>1. Create an album: one file that will hold your story.</source>
        <translation>1. Créez un album : un seul fichier, qui contiendra votre histoire.</translation>
    </message>
    <message>
        <source>2. Load pictures. They stay where they are on your disk.</source>
        <translation>2. Chargez des photos. Elles restent où elles sont sur votre disque.</translation>
    </message>
    <message>
        <source>3. Index them: say who and what they show.</source>
        <translation>3. Indexez-les : dites qui et quoi elles montrent.</translation>
    </message>
    <message>
        <source>4. Create a chapter and write. Each paragraph chooses its pictures.</source>
        <translation>4. Créez un chapitre et écrivez. Chaque paragraphe choisit ses photos.</translation>
    </message>
    <message>
        <source>5. Read the chapter, or let it play.</source>
        <translation>5. Lisez le chapitre, ou laissez-le défiler.</translation>
    </message>
    <message>
        <source>Descriptions</source>
        <translation>Descriptions</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>Exporter une table</translation>
    </message>
    <message>
        <source>Import Table</source>
        <translation>Importer une table</translation>
    </message>
    <message>
        <source>Export XMP Files</source>
        <translation>Exporter des fichiers XMP</translation>
    </message>
    <message>
        <source>Import XMP Files</source>
        <translation>Importer des fichiers XMP</translation>
    </message>
    <message>
        <source>Missing Pictures</source>
        <translation>Photos manquantes</translation>
    </message>
    <message>
        <source>Earlier States</source>
        <translation>États antérieurs</translation>
    </message>
    <message>
        <source>Check Album</source>
        <translation>Vérifier l&apos;album</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Undo Several...</source>
        <translation>Annuler plusieurs étapes...</translation>
    </message>
    <message>
        <source>Publish Story...</source>
        <translation>Publier le récit...</translation>
    </message>
</context>
<context>
    <name>frmOrganizeParagraphs</name>
    <message>
        <source>Organize Paragraphs</source>
        <translation>Organiser les paragraphes</translation>
    </message>
    <message>
        <source>Paragraphs</source>
        <translation>Paragraphes</translation>
    </message>
    <message>
        <source>Go to previous paragraph</source>
        <translation>Aller au paragraphe précédent</translation>
    </message>
    <message>
        <source>Previous paragraph</source>
        <translation>Paragraphe précédent</translation>
    </message>
    <message>
        <source>Go to next paragraph</source>
        <translation>Aller au paragraphe suivant</translation>
    </message>
    <message>
        <source>Next paragraph</source>
        <translation>Paragraphe suivant</translation>
    </message>
    <message>
        <source>Move selected paragraph one line up</source>
        <translation>Monter d&apos;une ligne le paragraphe choisi</translation>
    </message>
    <message>
        <source>MoveUp</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move selected paragraph one line down</source>
        <translation>Descendre d&apos;une ligne le paragraphe choisi</translation>
    </message>
    <message>
        <source>MoveDown</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Go to previous chapter</source>
        <translation>Aller au chapitre précédent</translation>
    </message>
    <message>
        <source>Previous Chapter</source>
        <translation>Chapitre précédent</translation>
    </message>
    <message>
        <source>Go to next chapter</source>
        <translation>Aller au chapitre suivant</translation>
    </message>
    <message>
        <source>Next Chapter</source>
        <translation>Chapitre suivant</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Organize Paragraphs from Chapter &apos;%1&apos;</source>
        <translation>Organiser les paragraphes du chapitre « %1 »</translation>
    </message>
    <message>
        <source>Previous Paragraph</source>
        <translation>Paragraphe précédent</translation>
    </message>
    <message>
        <source>Next Paragraph</source>
        <translation>Paragraphe suivant</translation>
    </message>
    <message>
        <source>Edit Paragraph</source>
        <translation>Modifier le paragraphe</translation>
    </message>
    <message>
        <source>Move Paragraph Up</source>
        <translation>Monter le paragraphe</translation>
    </message>
    <message>
        <source>Move Paragraph Down</source>
        <translation>Descendre le paragraphe</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
</context>
<context>
    <name>frmReelvane</name>
    <message>
        <source>Lumenark</source>
        <translation>Lumenark</translation>
    </message>
    <message>
        <source>Click to go back to previous chapter</source>
        <translation>Cliquez pour revenir au chapitre précédent</translation>
    </message>
    <message>
        <source>Previous chapter</source>
        <translation>Chapitre précédent</translation>
    </message>
    <message>
        <source>Click to go back to previous paragraph</source>
        <translation>Cliquez pour revenir au paragraphe précédent</translation>
    </message>
    <message>
        <source>Previous paragraph</source>
        <translation>Paragraphe précédent</translation>
    </message>
    <message>
        <source>Click to go to next paragraph</source>
        <translation>Cliquez pour aller au paragraphe suivant</translation>
    </message>
    <message>
        <source>Next paragraph</source>
        <translation>Paragraphe suivant</translation>
    </message>
    <message>
        <source>Click to go to next chapter</source>
        <translation>Cliquez pour aller au chapitre suivant</translation>
    </message>
    <message>
        <source>Next chapter</source>
        <translation>Chapitre suivant</translation>
    </message>
    <message>
        <source>Click to see the next pictures</source>
        <translation>Cliquez pour voir les photos suivantes</translation>
    </message>
    <message>
        <source>Next Pictures</source>
        <translation>Suivantes</translation>
    </message>
    <message>
        <source>Click to view less (but bigger) images on one screen</source>
        <translation>Cliquez pour voir moins de photos (mais plus grandes) à l&apos;écran</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Click to see more pictures on each screen</source>
        <translation>Cliquez pour voir plus de photos à l&apos;écran</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Click to start autoview</source>
        <translation>Cliquez pour démarrer le défilement automatique</translation>
    </message>
    <message>
        <source>Start Autoview</source>
        <translation>Défilement</translation>
    </message>
    <message>
        <source>Click to edit paragraph text and to filter pictures</source>
        <translation>Cliquez pour modifier le texte du paragraphe et filtrer les photos</translation>
    </message>
    <message>
        <source>Edit Paragraph</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Refresh Selection</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Click to hide the buttons (ESC=Exit)</source>
        <translation>Cliquez pour cacher les boutons (Échap = quitter)</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Cacher</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Stop Autoview</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Click to stop autoview</source>
        <translation>Cliquez pour arrêter le défilement automatique</translation>
    </message>
</context>
<context>
    <name>frmReloadPictures</name>
    <message>
        <source>Reload Moved Pictures</source>
        <translation>Retrouver les photos déplacées</translation>
    </message>
    <message>
        <source>Picture files were moved from :</source>
        <translation>Les photos se trouvaient dans :</translation>
    </message>
    <message>
        <source>To new folder :</source>
        <translation>Nouveau dossier :</translation>
    </message>
    <message>
        <source>Old folder</source>
        <translation>Ancien dossier</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Choose the directory containing the pictures to load</source>
        <translation>Choisissez le dossier qui contient les photos à charger</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nouveau dossier</translation>
    </message>
    <message>
        <source>Old Reference</source>
        <translation>Ancienne référence</translation>
    </message>
    <message>
        <source>New reference</source>
        <translation>Nouvelle référence</translation>
    </message>
    <message>
        <source>Load the selected pictures in the database</source>
        <translation>Charger les photos choisies dans la base de données</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Fermer</translation>
    </message>
    <message numerus="yes">
        <source>%n picture references updated</source>
        <translation>
            <numerusform>%n référence de photo mise à jour</numerusform>
            <numerusform>%n références de photos mises à jour</numerusform>
        </translation>
    </message>
    <message>
        <source>Please choose the new folder first: double click on it.</source>
        <translation>Veuillez d&apos;abord choisir le nouveau dossier : double-cliquez dessus.</translation>
    </message>
    <message numerus="yes">
        <source>%n already in the album</source>
        <translation>
            <numerusform>%n déjà dans l&apos;album</numerusform>
            <numerusform>%n déjà dans l&apos;album</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n links made by hand keep the old path</source>
        <translation>
            <numerusform>%n lien fait à la main garde l&apos;ancien chemin</numerusform>
            <numerusform>%n liens faits à la main gardent l&apos;ancien chemin</numerusform>
        </translation>
    </message>
    <message>
        <source>This folder is gone</source>
        <translation>Ce dossier n&apos;existe plus</translation>
    </message>
    <message>
        <source>Missing Pictures</source>
        <translation>Photos manquantes</translation>
    </message>
    <message>
        <source>Look for the files of all missing pictures at once, in a folder and all folders inside</source>
        <translation>Chercher les fichiers de toutes les photos manquantes à la fois, dans un dossier et tous les dossiers contenus</translation>
    </message>
</context>
<context>
    <name>frmRepairAlbum</name>
    <message>
        <source>Check and Repair Album</source>
        <translation>Vérifier et réparer l&apos;album</translation>
    </message>
    <message>
        <source>Do you want to check and repair the links between Chapters and Paragraphs ?</source>
        <translation>Voulez-vous vérifier et réparer les liens entre les chapitres et les paragraphes ?</translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>frmSelectImages</name>
    <message>
        <source>Select Image Files</source>
        <translation>Choisir des fichiers image</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Choose the directory containing the pictures to load</source>
        <translation>Choisissez le dossier qui contient les photos à charger</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Indicates here the picture file types you want to load</source>
        <translation>Indiquez ici les types de fichiers de photos à charger</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>Types de fichiers</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>*.*</source>
        <translation>*.*</translation>
    </message>
    <message>
        <source>At Random</source>
        <translation>Au hasard</translation>
    </message>
    <message>
        <source>Load the selected pictures in the database</source>
        <translation>Charger les photos choisies dans la base de données</translation>
    </message>
    <message>
        <source>Select </source>
        <translation>Choisir </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
</TS>
