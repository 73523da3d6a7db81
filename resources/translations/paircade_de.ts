<?xml version="1.0" encoding="utf-8"?>
<!--
SPDX-FileCopyrightText: 2026 The Paircade authors
SPDX-License-Identifier: GPL-3.0-or-later
-->
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
  <name></name>

  <!-- Start forms and sidebar -->
  <message id="enter_name"><extracomment>Placeholder of the name field of the one-player form; also the header text before a game.</extracomment>
    <source></source><translation>Gib deinen Namen ein</translation></message>
  <message id="enter_player_names"><extracomment>Header text when a versus game lacks a name.</extracomment>
    <source></source><translation>Gebt eure Namen ein</translation></message>
  <message id="player_one"><extracomment>Placeholder of the first versus field; stands in for the first player's name.</extracomment>
    <source></source><translation>Spieler 1</translation></message>
  <message id="player_two"><extracomment>Placeholder of the second versus field; stands in for the second player's name.</extracomment>
    <source></source><translation>Spieler 2</translation></message>
  <message id="unknown_player"><extracomment>Name stored with a one-player result that has none.</extracomment>
    <source></source><translation>Unbekannt</translation></message>
  <message id="start_game"><extracomment>Button of the one-player form.</extracomment>
    <source></source><translation>Spiel starten</translation></message>
  <message id="start_versus_game"><extracomment>Button of the two-player form.</extracomment>
    <source></source><translation>Duell starten</translation></message>
  <message id="end_game"><extracomment>Sidebar button while a game runs.</extracomment>
    <source></source><translation>Spiel beenden</translation></message>
  <message id="versus_mode"><extracomment>Sidebar check box that switches to two players; also the heading above the versus highscores.</extracomment>
    <source></source><translation>Duellmodus</translation></message>
  <message id="reset_highscores"><extracomment>Sidebar button; removes all stored results.</extracomment>
    <source></source><translation>Highscores zurücksetzen</translation></message>
  <message id="open_highscores_html"><extracomment>Sidebar button; opens the highscore page in the web browser.</extracomment>
    <source></source><translation>Highscores im Browser</translation></message>
  <message id="best_times"><extracomment>Sidebar heading above the fastest results.</extracomment>
    <source></source><translation>Bestzeiten</translation></message>
  <message id="fewest_failed_attempts"><extracomment>Sidebar heading above the results with the fewest failed attempts.</extracomment>
    <source></source><translation>Wenigste Fehlversuche</translation></message>
  <message id="time_label"><extracomment>Sidebar, below the logo. %1: time as minutes and seconds, 01:07.</extracomment>
    <source></source><translation>Zeit: %1</translation></message>
  <message id="failed_attempts_label"><extracomment>Sidebar, below the time. %1: number of failed attempts, from 0.</extracomment>
    <source></source><translation>Fehlversuche: %1</translation></message>

  <!-- Line above the board -->
  <message id="round_of_rounds"><extracomment>One player. %1: current round, from 1; %2: number of rounds.</extracomment>
    <source></source><translation>Runde %1 von %2</translation></message>
  <message id="player_turn"><extracomment>Two players, nothing turned yet. %1: name of the player to move.</extracomment>
    <source></source><translation>%1 ist dran</translation></message>
  <message id="player_choose_second_card"><extracomment>Two players, one card turned. %1: name of the player to move.</extracomment>
    <source></source><translation>%1, wähle eine zweite Karte</translation></message>
  <message id="player_found_pair"><extracomment>Two players. %1: name of the player who found a pair. May be the last pair of the game.</extracomment>
    <source></source><translation>%1 hat ein Paar gefunden!</translation></message>
  <message id="player_starts_round"><extracomment>Two players, a further round begins. %1: name of the player to move; %2: number of the round, from 2.</extracomment>
    <source></source><translation>%1 beginnt Runde %2</translation></message>

  <!-- Results, shown large after a game -->
  <message id="singleplayer_result"><extracomment>One player. %1: name; %2: time as minutes and seconds; %3: number of failed attempts, from 0.</extracomment>
    <source></source><translation>Gut gemacht, %1! %2 · Fehlversuche: %3</translation></message>
  <message id="player_wins_score"><extracomment>Two players. %1: winner's name; %2: winner's pairs; %3: loser's pairs, from 0.</extracomment>
    <source></source><translation>%1 gewinnt %2:%3!</translation></message>
  <message id="draw_score"><extracomment>Two players. %1 and %2: pairs of the first and of the second player, equal.</extracomment>
    <source></source><translation>Unentschieden, %1:%2</translation></message>

  <!-- Messages -->
  <message id="ok"><extracomment>Button that closes a message.</extracomment>
    <source></source><translation>OK</translation></message>
  <message id="not_enough_images_for_round"><extracomment>Message: a deck of the game has too few pictures. %1: different pictures needed; %2: round that could not be dealt.</extracomment>
    <source></source><translation>Dieses Deck hat zu wenige Bilder. Benötigt: %1 (Runde %2). Wähle in den Einstellungen ein anderes Deck oder ein kleineres Kartenlayout.</translation></message>
  <message id="iphoto_not_enough_images"><extracomment>Message: too few of the player's photos for a round, or no access to them. %1: photos needed.</extracomment>
    <source></source><translation>Für eine Runde stehen zu wenige Fotos zur Verfügung. Benötigt: %1. Füge weitere Fotos hinzu oder wähle in den Einstellungen ein anderes Deck oder ein kleineres Kartenlayout.</translation></message>
  <message id="iphoto_not_enough_images_in_album"><extracomment>Message: too few photos in the chosen album, or no access to it. %1: photos needed.</extracomment>
    <source></source><translation>Aus diesem Album stehen für eine Runde zu wenige Fotos zur Verfügung. Benötigt: %1. Füge dem Ordner des Albums weitere Fotos hinzu oder wähle in den Einstellungen ein anderes Deck oder ein kleineres Kartenlayout.</translation></message>
  <message id="iphoto_access_denied"><extracomment>Message, first line: a photo deck is chosen, but access to the photos is not allowed.</extracomment>
    <source></source><translation>Paircade darf deine Fotos nicht verwenden</translation></message>
  <message id="iphoto_access_denied_info"><extracomment>Message, below iphoto_access_denied. The quoted word is the caption in the preferences.</extracomment>
    <source></source><translation>Decks aus eigenen Fotos brauchen Zugriff auf deine Bilder. Das kannst du in den Einstellungen unter „Fotos“ ändern.</translation></message>
  <message id="iphoto_album_not_found"><extracomment>Message, first line: the folder of the chosen album is gone.</extracomment>
    <source></source><translation>Das Fotoalbum wurde nicht gefunden</translation></message>
  <message id="iphoto_album_not_found_info"><extracomment>Message, below iphoto_album_not_found.</extracomment>
    <source></source><translation>Sein Ordner wurde möglicherweise umbenannt, verschoben oder gelöscht. Stelle den Ordner wieder her oder wähle in den Einstellungen ein anderes Deck.</translation></message>
  <message id="iphoto_album_incomplete"><extracomment>Message, first line: the folder of the chosen album could not be read to its end.</extracomment>
    <source></source><translation>Das Fotoalbum konnte nicht vollständig gelesen werden.</translation></message>
  <message id="iphoto_album_incomplete_info"><extracomment>Message, below iphoto_album_incomplete.</extracomment>
    <source></source><translation>Sein Ordner oder dessen Laufwerk ist möglicherweise gerade nicht erreichbar. Versuche es später noch einmal oder wähle in den Einstellungen ein anderes Deck.</translation></message>
  <message id="iphoto_no_images_found"><extracomment>Message, first line: the pictures folder or the chosen album holds no photos.</extracomment>
    <source></source><translation>Es wurden keine Fotos gefunden</translation></message>
  <message id="iphoto_no_images_found_info"><extracomment>Message, below iphoto_no_images_found.</extracomment>
    <source></source><translation>Der Ordner, aus dem dieses Deck seine Fotos nimmt, enthält keine. Lege dort Fotos ab oder wähle in den Einstellungen ein anderes Deck.</translation></message>
  <message id="highscores_export_error_title"><extracomment>Message, first line: the highscore page could not be written. The system's own reason follows below.</extracomment>
    <source></source><translation>Die Highscore-Seite konnte nicht gespeichert werden</translation></message>
  <message id="already_running"><extracomment>Shown and printed at a second start when the running game does not answer.</extracomment>
    <source></source><translation>Paircade läuft bereits, antwortet aber nicht. Warte einen Moment und versuche es noch einmal. Hilft das nicht, beende zuerst das laufende Paircade.</translation></message>

  <!-- Preferences -->
  <message id="play_rounds_label_singular"><extracomment>Beside the rounds control. %1: number of rounds, always 1.</extracomment>
    <source></source><translation>%1 Runde pro Spiel</translation></message>
  <message id="play_rounds_label_plural" numerus="yes"><extracomment>Beside the rounds control. %1: number of rounds, any but 1.</extracomment>
    <source></source><translation><numerusform>%1 Runde pro Spiel</numerusform><numerusform>%1 Runden pro Spiel</numerusform></translation></message>
  <message id="card_layout_1"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>4 × 3, 6 Paare</translation></message>
  <message id="card_layout_2"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>4 × 4, 8 Paare</translation></message>
  <message id="card_layout_3"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>5 × 4, 10 Paare</translation></message>
  <message id="card_layout_4"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>6 × 4, 12 Paare</translation></message>
  <message id="card_layout_5"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>7 × 4, 14 Paare</translation></message>
  <message id="card_layout_6"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>8 × 5, 20 Paare</translation></message>
  <message id="preferences_accessible_name"><extracomment>Name of the preferences window for screen readers; no title shows.</extracomment>
    <source></source><translation>Einstellungen</translation></message>
  <message id="preferences_rounds"><extracomment>Caption before the number of rounds.</extracomment>
    <source></source><translation>Runden:</translation></message>
  <message id="preferences_card_layout"><extracomment>Caption before the number of the card layout.</extracomment>
    <source></source><translation>Kartenlayout:</translation></message>
  <message id="preferences_locked"><extracomment>Why the numbers of rounds and of the layout cannot be changed while a game runs.</extracomment>
    <source></source><translation>Lässt sich nach dem Spiel ändern.</translation></message>
  <message id="preferences_found_pairs"><extracomment>Caption before preferences_remove_match.</extracomment>
    <source></source><translation>Gefundene Paare:</translation></message>
  <message id="preferences_remove_match"><extracomment>Check box: found pairs leave the board.</extracomment>
    <source></source><translation>Vom Spielfeld nehmen</translation></message>
  <message id="preferences_deck"><extracomment>Caption before the menu of the decks.</extracomment>
    <source></source><translation>Kartendeck:</translation></message>
  <message id="preferences_preview"><extracomment>For screen readers: the first pictures of the chosen deck. %1: their names, with commas between.</extracomment>
    <source></source><translation>Bilder des Decks: %1</translation></message>
  <message id="preferences_no_preview"><extracomment>For screen readers: backs of cards in place of the pictures, which are the player’s own photos or missing.</extracomment>
    <source></source><translation>Kartenrücken</translation></message>
  <message id="preferences_photos"><extracomment>Caption before what the game may see of the player’s photos; quoted in iphoto_access_denied_info.</extracomment>
    <source></source><translation>Fotos:</translation></message>
  <message id="preferences_photos_not_asked"><extracomment>After the caption: the player was not yet asked for the photos.</extracomment>
    <source></source><translation>Noch nicht gefragt</translation></message>
  <message id="preferences_photos_all"><extracomment>After the caption: the game may use all pictures.</extracomment>
    <source></source><translation>Alle Bilder</translation></message>
  <message id="preferences_photos_only"><extracomment>After the caption: the game may use the pictures of one folder. %1: the folder’s name.</extracomment>
    <source></source><translation>Nur „%1“</translation></message>
  <message id="preferences_photos_none"><extracomment>After the caption: the game may use no pictures.</extracomment>
    <source></source><translation>Kein Zugriff</translation></message>
  <message id="preferences_photos_allow"><extracomment>Button: lets the player allow access to the photos for the first time.</extracomment>
    <source></source><translation>Erlauben …</translation></message>
  <message id="preferences_photos_change"><extracomment>Button: lets the player change the access to the photos.</extracomment>
    <source></source><translation>Ändern …</translation></message>
  <message id="preferences_photos_unavailable"><extracomment>Why the button beside the photos cannot be pressed.</extracomment>
    <source></source><translation>Diese Version kann eigene Fotos nicht verwenden.</translation></message>
  <message id="preferences_album"><extracomment>Check box: keeps an album named Paircade.</extracomment>
    <source></source><translation>Paircade-Album führen</translation></message>
  <message id="preferences_sound"><extracomment>Caption before preferences_play_sounds.</extracomment>
    <source></source><translation>Ton:</translation></message>
  <message id="preferences_play_sounds"><extracomment>Check box.</extracomment>
    <source></source><translation>Klänge abspielen</translation></message>
  <message id="preferences_volume"><extracomment>Caption before the slider of the volume.</extracomment>
    <source></source><translation>Lautstärke:</translation></message>
  <message id="volume_percent"><extracomment>Beside the slider of the volume. %1: 0 to 100. Where a space belongs before the sign it does not break.</extracomment>
    <source></source><translation>%1 %</translation></message>
  <message id="preferences_window"><extracomment>Caption before preferences_full_screen.</extracomment>
    <source></source><translation>Fenster:</translation></message>
  <message id="preferences_full_screen"><extracomment>Check box: the game starts in full screen.</extracomment>
    <source></source><translation>Im Vollbild starten</translation></message>

  <!-- Highscore page in the browser -->
  <message id="highscores_html_title"><extracomment>Title and main heading of the page.</extracomment>
    <source></source><translation>Paircade-Highscores</translation></message>
  <message id="highscores_html_subtitle"><extracomment>Below the heading. %1: internal number, left out on purpose; %2: card layout, 1 to 6; %3: rounds per game.</extracomment>
    <source></source><translation>Alle gespeicherten Ergebnisse. Aktuelle Einstellungen: Layout&#xa0;%2 von&#xa0;6, Runden:&#xa0;%3.</translation></message>
  <message id="highscores_html_generated"><extracomment>Below the subtitle. %1: date and time of the page.</extracomment>
    <source></source><translation>Erstellt am %1</translation></message>
  <message id="highscores_html_player"><extracomment>Column heading: one name, or two with vs between them.</extracomment>
    <source></source><translation>Spieler</translation></message>
  <message id="highscores_html_time"><extracomment>Column heading.</extracomment>
    <source></source><translation>Zeit</translation></message>
  <message id="highscores_html_failures"><extracomment>Column heading: failed attempts of one player, or pairs of two players, 3 : 5.</extracomment>
    <source></source><translation>Fehler /&#xa0;Punkte</translation></message>
  <message id="highscores_html_cards"><extracomment>Column heading: columns and rows of the board, 4x3.</extracomment>
    <source></source><translation>Karten</translation></message>
  <message id="highscores_html_rounds"><extracomment>Column heading: number of rounds.</extracomment>
    <source></source><translation>Runden</translation></message>
  <message id="highscores_html_mode"><extracomment>Column heading: one player or two.</extracomment>
    <source></source><translation>Modus</translation></message>
  <message id="highscores_empty"><extracomment>The only row while there is no result.</extracomment>
    <source></source><translation>Noch keine Ergebnisse</translation></message>
  <message id="highscores_mode_solo"><extracomment>Mode of a result of one player.</extracomment>
    <source></source><translation>Einzelspiel</translation></message>
  <message id="highscores_mode_versus"><extracomment>Mode of a result of two players.</extracomment>
    <source></source><translation>Duell</translation></message>

  <!-- Menus -->
  <message id="menu_game"><extracomment>Menu bar.</extracomment>
    <source></source><translation>Spiel</translation></message>
  <message id="menu_new_game"><extracomment>Game menu; starts a game.</extracomment>
    <source></source><translation>Neues Spiel</translation></message>
  <message id="menu_end_game"><extracomment>Game menu; ends the running game.</extracomment>
    <source></source><translation>Spiel beenden</translation></message>
  <message id="menu_open_highscores_html"><extracomment>Game menu; as open_highscores_html.</extracomment>
    <source></source><translation>Highscores im Browser</translation></message>
  <message id="menu_restore_highscores"><extracomment>Game menu; brings back what a reset removed.</extracomment>
    <source></source><translation>Highscores wiederherstellen</translation></message>
  <message id="menu_preferences"><extracomment>Game menu; opens the preferences.</extracomment>
    <source></source><translation>Einstellungen …</translation></message>
  <message id="menu_quit"><extracomment>Game menu; ends the program.</extracomment>
    <source></source><translation>Paircade beenden</translation></message>
  <message id="menu_view"><extracomment>Menu bar.</extracomment>
    <source></source><translation>Ansicht</translation></message>
  <message id="menu_full_screen"><extracomment>View menu; on or off.</extracomment>
    <source></source><translation>Vollbild</translation></message>
  <message id="menu_help"><extracomment>Menu bar.</extracomment>
    <source></source><translation>Hilfe</translation></message>
  <message id="menu_status"><extracomment>Help menu; a screen reader says how the game stands. Nothing is shown.</extracomment>
    <source></source><translation>Spielstand ansagen</translation></message>
  <message id="menu_keyboard"><extracomment>Help menu; shows keyboard_help.</extracomment>
    <source></source><translation>Tastatur</translation></message>
  <message id="menu_about"><extracomment>Help menu; shows about_text.</extracomment>
    <source></source><translation>Über Paircade</translation></message>
  <message id="keyboard_help"><extracomment>Help text, one line a key.</extracomment>
    <source></source><translation>Tab: durch die Bedienelemente gehen
Pfeiltasten: sich auf dem Spielfeld bewegen
Pos1, Ende: erste und letzte Karte der Reihe
Strg+Pos1, Strg+Ende: erste und letzte Karte des Spielfelds
Leertaste, Eingabetaste: Karte umdrehen
Alt und unterstrichener Buchstabe: dieses Bedienelement oder Menü
F1: Zeit und Spielstand vom Screenreader ansagen lassen
Strg+N: neues Spiel
F11: Vollbild
Strg+Komma: Einstellungen
Strg+Q: Paircade beenden</translation></message>
  <message id="about_text"><extracomment>About the program. %1: version number.</extracomment>
    <source></source><translation>Paircade %1

Ein Spiel für eine oder zwei Personen: Karten umdrehen und Paare finden.

Programm: GPL-3.0-or-later
Bilder und Klänge: CC-BY-SA-4.0</translation></message>

  <!-- Keyboard letters: one letter that occurs in the text, written as it is there; unique among the texts seen together -->
  <message id="mnemonic_menu_game"><extracomment>Letter underlined in menu_game.</extracomment><source></source><translation>S</translation></message>
  <message id="mnemonic_menu_view"><extracomment>Letter underlined in menu_view.</extracomment><source></source><translation>A</translation></message>
  <message id="mnemonic_menu_help"><extracomment>Letter underlined in menu_help.</extracomment><source></source><translation>H</translation></message>
  <message id="mnemonic_reset_highscores"><extracomment>Letter underlined in reset_highscores.</extracomment><source></source><translation>z</translation></message>
  <message id="mnemonic_open_highscores_html"><extracomment>Letter underlined in open_highscores_html.</extracomment><source></source><translation>B</translation></message>
  <message id="mnemonic_versus_mode"><extracomment>Letter underlined in versus_mode.</extracomment><source></source><translation>D</translation></message>
  <message id="mnemonic_start_game"><extracomment>Letter underlined in start_game.</extracomment><source></source><translation>t</translation></message>
  <message id="mnemonic_start_versus_game"><extracomment>Letter underlined in start_versus_game.</extracomment><source></source><translation>t</translation></message>
  <message id="mnemonic_end_game"><extracomment>Letter underlined in end_game.</extracomment><source></source><translation>n</translation></message>
  <message id="mnemonic_menu_new_game"><extracomment>Letter underlined in menu_new_game.</extracomment><source></source><translation>N</translation></message>
  <message id="mnemonic_menu_end_game"><extracomment>Letter underlined in menu_end_game.</extracomment><source></source><translation>S</translation></message>
  <message id="mnemonic_menu_open_highscores_html"><extracomment>Letter underlined in menu_open_highscores_html.</extracomment><source></source><translation>B</translation></message>
  <message id="mnemonic_menu_restore_highscores"><extracomment>Letter underlined in menu_restore_highscores.</extracomment><source></source><translation>w</translation></message>
  <message id="mnemonic_menu_preferences"><extracomment>Letter underlined in menu_preferences.</extracomment><source></source><translation>E</translation></message>
  <message id="mnemonic_menu_quit"><extracomment>Letter underlined in menu_quit.</extracomment><source></source><translation>P</translation></message>
  <message id="mnemonic_menu_full_screen"><extracomment>Letter underlined in menu_full_screen.</extracomment><source></source><translation>V</translation></message>
  <message id="mnemonic_menu_status"><extracomment>Letter underlined in menu_status.</extracomment><source></source><translation>S</translation></message>
  <message id="mnemonic_menu_keyboard"><extracomment>Letter underlined in menu_keyboard.</extracomment><source></source><translation>T</translation></message>
  <message id="mnemonic_menu_about"><extracomment>Letter underlined in menu_about.</extracomment><source></source><translation>b</translation></message>
  <message id="mnemonic_preferences_rounds"><extracomment>Letter underlined in preferences_rounds.</extracomment><source></source><translation>R</translation></message>
  <message id="mnemonic_preferences_card_layout"><extracomment>Letter underlined in preferences_card_layout.</extracomment><source></source><translation>y</translation></message>
  <message id="mnemonic_preferences_remove_match"><extracomment>Letter underlined in preferences_remove_match.</extracomment><source></source><translation>V</translation></message>
  <message id="mnemonic_preferences_deck"><extracomment>Letter underlined in preferences_deck.</extracomment><source></source><translation>d</translation></message>
  <message id="mnemonic_preferences_photos_allow"><extracomment>Letter underlined in preferences_photos_allow.</extracomment><source></source><translation>E</translation></message>
  <message id="mnemonic_preferences_photos_change"><extracomment>Letter underlined in preferences_photos_change.</extracomment><source></source><translation>Ä</translation></message>
  <message id="mnemonic_preferences_album"><extracomment>Letter underlined in preferences_album.</extracomment><source></source><translation>P</translation></message>
  <message id="mnemonic_preferences_play_sounds"><extracomment>Letter underlined in preferences_play_sounds.</extracomment><source></source><translation>K</translation></message>
  <message id="mnemonic_preferences_volume"><extracomment>Letter underlined in preferences_volume.</extracomment><source></source><translation>L</translation></message>
  <message id="mnemonic_preferences_full_screen"><extracomment>Letter underlined in preferences_full_screen.</extracomment><source></source><translation>I</translation></message>

  <!-- Screen readers -->
  <message id="window_accessible_name"><extracomment>Name of the main window.</extracomment>
    <source></source><translation>Paircade</translation></message>
  <message id="board_accessible_name"><extracomment>Name of the board.</extracomment>
    <source></source><translation>Karten</translation></message>
  <message id="title_accessible_name"><extracomment>Name of the line above the board, which tells whose turn it is, the round or the result.</extracomment>
    <source></source><translation>Spielstatus</translation></message>
  <message id="tile_hidden"><extracomment>A card whose back shows. %1: row; %2: column, both from 1.</extracomment>
    <source></source><translation>Reihe %1, Spalte %2, verdeckt</translation></message>
  <message id="tile_turned"><extracomment>A turned card. %1: row; %2: column; %3: name of the picture.</extracomment>
    <source></source><translation>Reihe %1, Spalte %2, %3</translation></message>
  <message id="tile_found"><extracomment>A card whose pair was found. %1: row; %2: column; %3: name of the picture.</extracomment>
    <source></source><translation>Reihe %1, Spalte %2, %3, Paar gefunden</translation></message>
  <message id="tile_removed"><extracomment>A place whose card was found and taken off. %1: row; %2: column.</extracomment>
    <source></source><translation>Reihe %1, Spalte %2, leer</translation></message>
  <message id="picture_without_name"><extracomment>Name of a picture that has none, such as a photo. %1: number of the picture, from 1.</extracomment>
    <source></source><translation>Bild %1</translation></message>

  <!-- Said by screen readers; a full stop is put after a text that ends in no mark of its own -->
  <message id="said_dealt"><extracomment>A new board lies there. %1: rows, at least 3; %2: columns, at least 4.</extracomment>
    <source></source><translation>Karten ausgeteilt: %1 Reihen, %2 Spalten</translation></message>
  <message id="said_pair"><extracomment>The second card turned makes a pair. %1: name of the picture.</extracomment>
    <source></source><translation>Ein Paar: %1</translation></message>
  <message id="said_no_pair"><extracomment>The second card turned makes no pair; its name was said just before.</extracomment>
    <source></source><translation>Kein Paar</translation></message>
  <message id="said_back"><extracomment>Both cards that made no pair are turned back.</extracomment>
    <source></source><translation>Wieder verdeckt</translation></message>
  <message id="status_pairs_left"><extracomment>%1: number of pairs still to find, from 1.</extracomment>
    <source></source><translation>Verbleibende Paare: %1</translation></message>
  <message id="status_no_game"><extracomment>Said in place of the score.</extracomment>
    <source></source><translation>Es läuft kein Spiel.</translation></message>

  <!-- Pictures of the Cyberpunk deck -->
  <message id="card_can"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Getränkedose</translation></message>
  <message id="card_cat"><extracomment>Picture, Cyberpunk and Kids.</extracomment><source></source><translation>Katze</translation></message>
  <message id="card_drone"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Drohne</translation></message>
  <message id="card_eye"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Auge</translation></message>
  <message id="card_globe"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Globus</translation></message>
  <message id="card_headphones"><extracomment>Picture, Cyberpunk and 80s.</extracomment><source></source><translation>Kopfhörer</translation></message>
  <message id="card_heart"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Herz</translation></message>
  <message id="card_hover_car"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Schwebeauto</translation></message>
  <message id="card_jellyfish"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Qualle</translation></message>
  <message id="card_microchip"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Mikrochip</translation></message>
  <message id="card_motorcycle"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Motorrad</translation></message>
  <message id="card_noodle_bowl"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Nudelschüssel</translation></message>
  <message id="card_padlock"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Vorhängeschloss</translation></message>
  <message id="card_palm"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Palme</translation></message>
  <message id="card_rain_boots"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Gummistiefel</translation></message>
  <message id="card_robot"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Roboter</translation></message>
  <message id="card_robot_dog"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Roboterhund</translation></message>
  <message id="card_robot_hand"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Roboterhand</translation></message>
  <message id="card_satellite_dish"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Satellitenschüssel</translation></message>
  <message id="card_skyscraper"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Wolkenkratzer</translation></message>
  <message id="card_sneaker"><extracomment>Picture, Cyberpunk and 80s.</extracomment><source></source><translation>Turnschuh</translation></message>
  <message id="card_umbrella"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Regenschirm</translation></message>
  <message id="card_vending_machine"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Getränkeautomat</translation></message>
  <message id="card_vr_goggles"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>VR-Brille</translation></message>

  <!-- Pictures of the Kids deck that no deck above has -->
  <message id="card_balloon"><extracomment>Picture, Kids.</extracomment><source></source><translation>Heißluftballon</translation></message>
  <message id="card_bee"><extracomment>Picture, Kids.</extracomment><source></source><translation>Biene</translation></message>
  <message id="card_crab"><extracomment>Picture, Kids.</extracomment><source></source><translation>Krabbe</translation></message>
  <message id="card_dinosaur"><extracomment>Picture, Kids.</extracomment><source></source><translation>Dino</translation></message>
  <message id="card_duck"><extracomment>Picture, Kids.</extracomment><source></source><translation>Ente</translation></message>
  <message id="card_elephant"><extracomment>Picture, Kids.</extracomment><source></source><translation>Elefant</translation></message>
  <message id="card_fox"><extracomment>Picture, Kids.</extracomment><source></source><translation>Fuchs</translation></message>
  <message id="card_frog"><extracomment>Picture, Kids.</extracomment><source></source><translation>Frosch</translation></message>
  <message id="card_giraffe"><extracomment>Picture, Kids.</extracomment><source></source><translation>Giraffe</translation></message>
  <message id="card_hedgehog"><extracomment>Picture, Kids.</extracomment><source></source><translation>Igel</translation></message>
  <message id="card_ladybird"><extracomment>Picture, Kids.</extracomment><source></source><translation>Marienkäfer</translation></message>
  <message id="card_lion"><extracomment>Picture, Kids.</extracomment><source></source><translation>Löwe</translation></message>
  <message id="card_octopus"><extracomment>Picture, Kids.</extracomment><source></source><translation>Krake</translation></message>
  <message id="card_owl"><extracomment>Picture, Kids and 70s.</extracomment><source></source><translation>Eule</translation></message>
  <message id="card_penguin"><extracomment>Picture, Kids.</extracomment><source></source><translation>Pinguin</translation></message>
  <message id="card_rabbit"><extracomment>Picture, Kids.</extracomment><source></source><translation>Hase</translation></message>
  <message id="card_rocket"><extracomment>Picture, Kids.</extracomment><source></source><translation>Rakete</translation></message>
  <message id="card_sailing_boat"><extracomment>Picture, Kids.</extracomment><source></source><translation>Segelboot</translation></message>
  <message id="card_snail"><extracomment>Picture, Kids.</extracomment><source></source><translation>Schnecke</translation></message>
  <message id="card_tractor"><extracomment>Picture, Kids.</extracomment><source></source><translation>Traktor</translation></message>
  <message id="card_train"><extracomment>Picture, Kids.</extracomment><source></source><translation>Lokomotive</translation></message>
  <message id="card_turtle"><extracomment>Picture, Kids.</extracomment><source></source><translation>Schildkröte</translation></message>
  <message id="card_whale"><extracomment>Picture, Kids.</extracomment><source></source><translation>Wal</translation></message>

  <!-- Pictures of the 70s deck that no deck above has -->
  <message id="card_bicycle"><extracomment>Picture, 70s.</extracomment><source></source><translation>Fahrrad</translation></message>
  <message id="card_butterfly"><extracomment>Picture, 70s.</extracomment><source></source><translation>Schmetterling</translation></message>
  <message id="card_cactus"><extracomment>Picture, 70s.</extracomment><source></source><translation>Kaktus</translation></message>
  <message id="card_camper_van"><extracomment>Picture, 70s.</extracomment><source></source><translation>Campingbus</translation></message>
  <message id="card_daisy"><extracomment>Picture, 70s.</extracomment><source></source><translation>Gänseblümchen</translation></message>
  <message id="card_disco_ball"><extracomment>Picture, 70s.</extracomment><source></source><translation>Discokugel</translation></message>
  <message id="card_dove"><extracomment>Picture, 70s.</extracomment><source></source><translation>Taube</translation></message>
  <message id="card_egg_chair"><extracomment>Picture, 70s.</extracomment><source></source><translation>Kugelsessel</translation></message>
  <message id="card_flared_trousers"><extracomment>Picture, 70s.</extracomment><source></source><translation>Schlaghose</translation></message>
  <message id="card_fondue_pot"><extracomment>Picture, 70s.</extracomment><source></source><translation>Fondue</translation></message>
  <message id="card_guitar"><extracomment>Picture, 70s.</extracomment><source></source><translation>Gitarre</translation></message>
  <message id="card_lava_lamp"><extracomment>Picture, 70s.</extracomment><source></source><translation>Lavalampe</translation></message>
  <message id="card_mushroom"><extracomment>Picture, 70s.</extracomment><source></source><translation>Pilz</translation></message>
  <message id="card_orange_slice"><extracomment>Picture, 70s.</extracomment><source></source><translation>Orange</translation></message>
  <message id="card_pendant_lamp"><extracomment>Picture, 70s.</extracomment><source></source><translation>Hängelampe</translation></message>
  <message id="card_platform_shoe"><extracomment>Picture, 70s.</extracomment><source></source><translation>Plateauschuh</translation></message>
  <message id="card_roller_skate"><extracomment>Picture, 70s.</extracomment><source></source><translation>Rollschuh</translation></message>
  <message id="card_sunglasses"><extracomment>Picture, 70s and 80s.</extracomment><source></source><translation>Sonnenbrille</translation></message>
  <message id="card_surfboard"><extracomment>Picture, 70s.</extracomment><source></source><translation>Surfbrett</translation></message>
  <message id="card_telephone"><extracomment>Picture, 70s and 80s.</extracomment><source></source><translation>Telefon</translation></message>
  <message id="card_television"><extracomment>Picture, 70s.</extracomment><source></source><translation>Fernseher</translation></message>
  <message id="card_typewriter"><extracomment>Picture, 70s.</extracomment><source></source><translation>Schreibmaschine</translation></message>
  <message id="card_vinyl_record"><extracomment>Picture, 70s.</extracomment><source></source><translation>Schallplatte</translation></message>

  <!-- Pictures of the 80s deck that no deck above has -->
  <message id="card_arcade_machine"><extracomment>Picture, 80s.</extracomment><source></source><translation>Arcade-Automat</translation></message>
  <message id="card_bmx_bike"><extracomment>Picture, 80s.</extracomment><source></source><translation>BMX-Rad</translation></message>
  <message id="card_boombox"><extracomment>Picture, 80s.</extracomment><source></source><translation>Radiorekorder</translation></message>
  <message id="card_cassette_tape"><extracomment>Picture, 80s.</extracomment><source></source><translation>Kassette</translation></message>
  <message id="card_colour_cube"><extracomment>Picture, 80s.</extracomment><source></source><translation>Zauberwürfel</translation></message>
  <message id="card_flamingo"><extracomment>Picture, 80s.</extracomment><source></source><translation>Flamingo</translation></message>
  <message id="card_floppy_disk"><extracomment>Picture, 80s.</extracomment><source></source><translation>Diskette</translation></message>
  <message id="card_gum_machine"><extracomment>Picture, 80s.</extracomment><source></source><translation>Kaugummiautomat</translation></message>
  <message id="card_home_computer"><extracomment>Picture, 80s.</extracomment><source></source><translation>Computer</translation></message>
  <message id="card_ice_pop"><extracomment>Picture, 80s.</extracomment><source></source><translation>Eis am Stiel</translation></message>
  <message id="card_instant_camera"><extracomment>Picture, 80s.</extracomment><source></source><translation>Kamera</translation></message>
  <message id="card_joystick"><extracomment>Picture, 80s.</extracomment><source></source><translation>Joystick</translation></message>
  <message id="card_lightning_bolt"><extracomment>Picture, 80s.</extracomment><source></source><translation>Blitz</translation></message>
  <message id="card_mobile_phone"><extracomment>Picture, 80s.</extracomment><source></source><translation>Mobiltelefon</translation></message>
  <message id="card_palm_tree"><extracomment>Picture, 80s.</extracomment><source></source><translation>Palme</translation></message>
  <message id="card_popcorn"><extracomment>Picture, 80s.</extracomment><source></source><translation>Popcorn</translation></message>
  <message id="card_skateboard"><extracomment>Picture, 80s.</extracomment><source></source><translation>Skateboard</translation></message>
  <message id="card_sports_car"><extracomment>Picture, 80s.</extracomment><source></source><translation>Sportwagen</translation></message>
  <message id="card_synthesizer"><extracomment>Picture, 80s.</extracomment><source></source><translation>Synthesizer</translation></message>
  <message id="card_wrist_watch"><extracomment>Picture, 80s.</extracomment><source></source><translation>Armbanduhr</translation></message>

  <!-- The question for access to the photos -->
  <message id="photo_question_title"><extracomment>Heading of the question for access to the player’s photos.</extracomment>
    <source></source><translation>Mit eigenen Fotos spielen?</translation></message>
  <message id="photo_question_text"><extracomment>Under the heading: what the photos are for.</extracomment>
    <source></source><translation>Für Foto-Decks macht Paircade Karten aus den Bildern im Bilderordner. Es sieht sie nur an: Kein Bild wird verändert, und nichts verlässt diesen Rechner.</translation></message>
  <message id="photo_question_all"><extracomment>Button, answer to the question.</extracomment>
    <source></source><translation>Alle Bilder</translation></message>
  <message id="photo_question_all_consequence"><extracomment>Beside the button: what that answer gives.</extracomment>
    <source></source><translation>Der Bilderordner samt seinen Alben</translation></message>
  <message id="photo_question_folder"><extracomment>Button, answer to the question; leads to a dialog.</extracomment>
    <source></source><translation>Ordner wählen …</translation></message>
  <message id="photo_question_folder_consequence"><extracomment>Beside the button: what that answer gives.</extracomment>
    <source></source><translation>Nur, was darin liegt</translation></message>
  <message id="photo_question_none"><extracomment>Button, answer to the question.</extracomment>
    <source></source><translation>Kein Zugriff</translation></message>
  <message id="photo_question_none_consequence"><extracomment>Beside the button: what that answer gives.</extracomment>
    <source></source><translation>Nur die vier Decks des Spiels</translation></message>
  <message id="photo_question_foot"><extracomment>Last line of the question.</extracomment>
    <source></source><translation>Das lässt sich in den Einstellungen jederzeit ändern.</translation></message>
  <message id="photo_question_choose"><extracomment>Title of the dialog in which a folder is chosen.</extracomment>
    <source></source><translation>Ordner wählen</translation></message>
  <message id="mnemonic_photo_question_all"><extracomment>Letter underlined in photo_question_all.</extracomment><source></source><translation>A</translation></message>
  <message id="mnemonic_photo_question_folder"><extracomment>Letter underlined in photo_question_folder.</extracomment><source></source><translation>O</translation></message>
  <message id="mnemonic_photo_question_none"><extracomment>Letter underlined in photo_question_none.</extracomment><source></source><translation>K</translation></message>

  <!-- The desktop’s menu and the software centre: the build puts these into files of theirs -->
  <message id="desktop_generic_name"><extracomment>In the desktop’s menu: what kind of program this is.</extracomment>
    <source></source><translation>Paare-Spiel</translation></message>
  <message id="desktop_comment"><extracomment>In the menu and the software centre: what the program does, without a full stop.</extracomment>
    <source></source><translation>Karten umdrehen und Paare finden, allein oder zu zweit</translation></message>
  <message id="desktop_keywords"><extracomment>Words that find the program in the menu, each with a semicolon after it.</extracomment>
    <source></source><translation>Paare;Karten;Pärchen;Gedächtnis;Merkspiel;Kinder;</translation></message>
  <message id="store_description_play"><extracomment>First paragraph in the software centre.</extracomment>
    <source></source><translation>Drehe immer zwei Karten um, merke dir, wo die Bilder liegen, und finde die Paare: allein gegen die Uhr oder zu zweit im Wechsel.</translation></message>
  <message id="store_description_more"><extracomment>Second paragraph in the software centre.</extracomment>
    <source></source><translation>Es gibt vier Decks mit gezeichneten Bildern, sechs Spielfelder von 4 × 3 bis 8 × 5 und so viele Runden, wie du möchtest. Auch deine eigenen Fotos können ein Deck sein; sie verlassen den Computer nie. Die besten Ergebnisse stehen neben dem Spielfeld. Das ganze Spiel lässt sich mit der Maus, mit der Tastatur oder mit einem Screenreader spielen.</translation></message>
</context>
</TS>
