<?xml version="1.0" encoding="utf-8"?>
<!--
SPDX-FileCopyrightText: 2026 The Paircade authors
SPDX-License-Identifier: GPL-3.0-or-later
-->
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
  <name></name>

  <!-- Start forms and sidebar -->
  <message id="enter_name"><extracomment>Placeholder of the name field of the one-player form; also the header text before a game.</extracomment>
    <source></source><translation>Escribe tu nombre</translation></message>
  <message id="enter_player_names"><extracomment>Header text when a versus game lacks a name.</extracomment>
    <source></source><translation>Escribe los dos nombres</translation></message>
  <message id="player_one"><extracomment>Placeholder of the first versus field; stands in for the first player's name.</extracomment>
    <source></source><translation>Jugador 1</translation></message>
  <message id="player_two"><extracomment>Placeholder of the second versus field; stands in for the second player's name.</extracomment>
    <source></source><translation>Jugador 2</translation></message>
  <message id="unknown_player"><extracomment>Name stored with a one-player result that has none.</extracomment>
    <source></source><translation>Sin nombre</translation></message>
  <message id="start_game"><extracomment>Button of the one-player form.</extracomment>
    <source></source><translation>Jugar</translation></message>
  <message id="start_versus_game"><extracomment>Button of the two-player form.</extracomment>
    <source></source><translation>Empezar duelo</translation></message>
  <message id="end_game"><extracomment>Sidebar button while a game runs.</extracomment>
    <source></source><translation>Terminar partida</translation></message>
  <message id="versus_mode"><extracomment>Sidebar check box that switches to two players; also the heading above the versus highscores.</extracomment>
    <source></source><translation>Modo duelo</translation></message>
  <message id="reset_highscores"><extracomment>Sidebar button; removes all stored results.</extracomment>
    <source></source><translation>Borrar puntuaciones</translation></message>
  <message id="open_highscores_html"><extracomment>Sidebar button; opens the highscore page in the web browser.</extracomment>
    <source></source><translation>Ver puntuaciones</translation></message>
  <message id="best_times"><extracomment>Sidebar heading above the fastest results.</extracomment>
    <source></source><translation>Mejores tiempos</translation></message>
  <message id="fewest_failed_attempts"><extracomment>Sidebar heading above the results with the fewest failed attempts.</extracomment>
    <source></source><translation>Menos fallos</translation></message>
  <message id="time_label"><extracomment>Sidebar, below the logo. %1: time as minutes and seconds, 01:07.</extracomment>
    <source></source><translation>Tiempo: %1</translation></message>
  <message id="failed_attempts_label"><extracomment>Sidebar, below the time. %1: number of failed attempts, from 0.</extracomment>
    <source></source><translation>Fallos: %1</translation></message>

  <!-- Line above the board -->
  <message id="round_of_rounds"><extracomment>One player. %1: current round, from 1; %2: number of rounds.</extracomment>
    <source></source><translation>Ronda %1 de %2</translation></message>
  <message id="player_turn"><extracomment>Two players, nothing turned yet. %1: name of the player to move.</extracomment>
    <source></source><translation>%1, te toca</translation></message>
  <message id="player_choose_second_card"><extracomment>Two players, one card turned. %1: name of the player to move.</extracomment>
    <source></source><translation>%1, elige otra carta</translation></message>
  <message id="player_found_pair"><extracomment>Two players. %1: name of the player who found a pair. May be the last pair of the game.</extracomment>
    <source></source><translation>¡%1 encuentra una pareja!</translation></message>
  <message id="player_starts_round"><extracomment>Two players, a further round begins. %1: name of the player to move; %2: number of the round, from 2.</extracomment>
    <source></source><translation>%1 empieza la ronda %2</translation></message>

  <!-- Results, shown large after a game -->
  <message id="singleplayer_result"><extracomment>One player. %1: name; %2: time as minutes and seconds; %3: number of failed attempts, from 0.</extracomment>
    <source></source><translation>¡Muy bien, %1! %2 · Fallos: %3</translation></message>
  <message id="player_wins_score"><extracomment>Two players. %1: winner's name; %2: winner's pairs; %3: loser's pairs, from 0.</extracomment>
    <source></source><translation>¡%1 gana por %2 a %3!</translation></message>
  <message id="draw_score"><extracomment>Two players. %1 and %2: pairs of the first and of the second player, equal.</extracomment>
    <source></source><translation>Empate: %1 a %2</translation></message>

  <!-- Messages -->
  <message id="ok"><extracomment>Button that closes a message.</extracomment>
    <source></source><translation>Aceptar</translation></message>
  <message id="not_enough_images_for_round"><extracomment>Message: a deck of the game has too few pictures. %1: different pictures needed; %2: round that could not be dealt.</extracomment>
    <source></source><translation>Esta baraja tiene muy pocas imágenes. Se necesitan %1 (ronda %2). Elige otra baraja o un tablero más pequeño en las preferencias.</translation></message>
  <message id="iphoto_not_enough_images"><extracomment>Message: too few of the player's photos for a round, or no access to them. %1: photos needed.</extracomment>
    <source></source><translation>Hay muy pocas fotos para una ronda. Se necesitan %1. Añade más fotos, o elige otra baraja o un tablero más pequeño en las preferencias.</translation></message>
  <message id="iphoto_not_enough_images_in_album"><extracomment>Message: too few photos in the chosen album, or no access to it. %1: photos needed.</extracomment>
    <source></source><translation>Este álbum tiene muy pocas fotos para una ronda. Se necesitan %1. Añade más fotos a la carpeta del álbum, o elige otra baraja o un tablero más pequeño en las preferencias.</translation></message>
  <message id="iphoto_access_denied"><extracomment>Message, first line: a photo deck is chosen, but access to the photos is not allowed.</extracomment>
    <source></source><translation>Paircade no tiene acceso a tus fotos</translation></message>
  <message id="iphoto_access_denied_info"><extracomment>Message, below iphoto_access_denied. The quoted word is the caption in the preferences.</extracomment>
    <source></source><translation>Para jugar con tus propias fotos, Paircade necesita ver tus imágenes. Puedes cambiarlo en las preferencias, en «Fotos».</translation></message>
  <message id="iphoto_album_not_found"><extracomment>Message, first line: the folder of the chosen album is gone.</extracomment>
    <source></source><translation>No se encuentra el álbum de fotos</translation></message>
  <message id="iphoto_album_not_found_info"><extracomment>Message, below iphoto_album_not_found.</extracomment>
    <source></source><translation>Puede que su carpeta se haya renombrado, movido o eliminado. Restaura la carpeta o elige otra baraja en las preferencias.</translation></message>
  <message id="iphoto_album_incomplete"><extracomment>Message, first line: the folder of the chosen album could not be read to its end.</extracomment>
    <source></source><translation>No se ha podido leer por completo el álbum de fotos.</translation></message>
  <message id="iphoto_album_incomplete_info"><extracomment>Message, below iphoto_album_incomplete.</extracomment>
    <source></source><translation>Puede que su carpeta o el disco en el que está no estén disponibles en este momento. Vuelve a intentarlo más tarde o elige otra baraja en las preferencias.</translation></message>
  <message id="iphoto_no_images_found"><extracomment>Message, first line: the pictures folder or the chosen album holds no photos.</extracomment>
    <source></source><translation>No se han encontrado fotos</translation></message>
  <message id="iphoto_no_images_found_info"><extracomment>Message, below iphoto_no_images_found.</extracomment>
    <source></source><translation>La carpeta de la que esta baraja toma las fotos no contiene ninguna. Añade fotos o elige otra baraja en las preferencias.</translation></message>
  <message id="highscores_export_error_title"><extracomment>Message, first line: the highscore page could not be written. The system's own reason follows below.</extracomment>
    <source></source><translation>No se pudo guardar la página de puntuaciones</translation></message>
  <message id="already_running"><extracomment>Shown and printed at a second start when the running game does not answer.</extracomment>
    <source></source><translation>Paircade ya está abierto, pero no responde. Espera un momento e inténtalo de nuevo. Si no funciona, cierra antes el otro Paircade.</translation></message>

  <!-- Preferences -->
  <message id="play_rounds_label_singular"><extracomment>Beside the rounds control. %1: number of rounds, always 1.</extracomment>
    <source></source><translation>%1 ronda por partida</translation></message>
  <message id="play_rounds_label_plural" numerus="yes"><extracomment>Beside the rounds control. %1: number of rounds, any but 1.</extracomment>
    <source></source><translation><numerusform>%1 ronda por partida</numerusform><numerusform>%1 rondas por partida</numerusform></translation></message>
  <message id="card_layout_1"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>4 × 3, 6 parejas</translation></message>
  <message id="card_layout_2"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>4 × 4, 8 parejas</translation></message>
  <message id="card_layout_3"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>5 × 4, 10 parejas</translation></message>
  <message id="card_layout_4"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>6 × 4, 12 parejas</translation></message>
  <message id="card_layout_5"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>7 × 4, 14 parejas</translation></message>
  <message id="card_layout_6"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>8 × 5, 20 parejas</translation></message>
  <message id="preferences_accessible_name"><extracomment>Name of the preferences window for screen readers; no title shows.</extracomment>
    <source></source><translation>Preferencias</translation></message>
  <message id="preferences_rounds"><extracomment>Caption before the number of rounds.</extracomment>
    <source></source><translation>Rondas:</translation></message>
  <message id="preferences_card_layout"><extracomment>Caption before the number of the card layout.</extracomment>
    <source></source><translation>Tablero:</translation></message>
  <message id="preferences_locked"><extracomment>Why the numbers of rounds and of the layout cannot be changed while a game runs.</extracomment>
    <source></source><translation>Se puede cambiar cuando acabe la partida.</translation></message>
  <message id="preferences_found_pairs"><extracomment>Caption before preferences_remove_match.</extracomment>
    <source></source><translation>Parejas halladas:</translation></message>
  <message id="preferences_remove_match"><extracomment>Check box: found pairs leave the board.</extracomment>
    <source></source><translation>Quitarlas del tablero</translation></message>
  <message id="preferences_deck"><extracomment>Caption before the menu of the decks.</extracomment>
    <source></source><translation>Baraja:</translation></message>
  <message id="preferences_preview"><extracomment>For screen readers: the first pictures of the chosen deck. %1: their names, with commas between.</extracomment>
    <source></source><translation>Imágenes de la baraja: %1</translation></message>
  <message id="preferences_no_preview"><extracomment>For screen readers: backs of cards in place of the pictures, which are the player’s own photos or missing.</extracomment>
    <source></source><translation>Dorsos de cartas</translation></message>
  <message id="preferences_photos"><extracomment>Caption before what the game may see of the player’s photos; quoted in iphoto_access_denied_info.</extracomment>
    <source></source><translation>Fotos:</translation></message>
  <message id="preferences_photos_not_asked"><extracomment>After the caption: the player was not yet asked for the photos.</extracomment>
    <source></source><translation>Aún sin decidir</translation></message>
  <message id="preferences_photos_all"><extracomment>After the caption: the game may use all pictures.</extracomment>
    <source></source><translation>Todas las imágenes</translation></message>
  <message id="preferences_photos_only"><extracomment>After the caption: the game may use the pictures of one folder. %1: the folder’s name.</extracomment>
    <source></source><translation>Solo «%1»</translation></message>
  <message id="preferences_photos_none"><extracomment>After the caption: the game may use no pictures.</extracomment>
    <source></source><translation>Sin acceso</translation></message>
  <message id="preferences_photos_allow"><extracomment>Button: lets the player allow access to the photos for the first time.</extracomment>
    <source></source><translation>Permitir…</translation></message>
  <message id="preferences_photos_change"><extracomment>Button: lets the player change the access to the photos.</extracomment>
    <source></source><translation>Cambiar…</translation></message>
  <message id="preferences_photos_unavailable"><extracomment>Why the button beside the photos cannot be pressed.</extracomment>
    <source></source><translation>Esta versión no puede usar tus fotos.</translation></message>
  <message id="preferences_album"><extracomment>Check box: keeps an album named Paircade.</extracomment>
    <source></source><translation>Tener un álbum Paircade</translation></message>
  <message id="preferences_sound"><extracomment>Caption before preferences_play_sounds.</extracomment>
    <source></source><translation>Sonido:</translation></message>
  <message id="preferences_play_sounds"><extracomment>Check box.</extracomment>
    <source></source><translation>Reproducir sonidos</translation></message>
  <message id="preferences_volume"><extracomment>Caption before the slider of the volume.</extracomment>
    <source></source><translation>Volumen:</translation></message>
  <message id="volume_percent"><extracomment>Beside the slider of the volume. %1: 0 to 100. Where a space belongs before the sign it does not break.</extracomment>
    <source></source><translation>%1 %</translation></message>
  <message id="preferences_window"><extracomment>Caption before preferences_full_screen.</extracomment>
    <source></source><translation>Ventana:</translation></message>
  <message id="preferences_full_screen"><extracomment>Check box: the game starts in full screen.</extracomment>
    <source></source><translation>Iniciar en pantalla completa</translation></message>

  <!-- Highscore page in the browser -->
  <message id="highscores_html_title"><extracomment>Title and main heading of the page.</extracomment>
    <source></source><translation>Puntuaciones de Paircade</translation></message>
  <message id="highscores_html_subtitle"><extracomment>Below the heading. %1: internal number, left out on purpose; %2: card layout, 1 to 6; %3: rounds per game.</extracomment>
    <source></source><translation>Todos los resultados guardados. Ajustes actuales: tablero %2 de 6, rondas: %3.</translation></message>
  <message id="highscores_html_generated"><extracomment>Below the subtitle. %1: date and time of the page.</extracomment>
    <source></source><translation>Creado el %1</translation></message>
  <message id="highscores_html_player"><extracomment>Column heading: one name, or two with vs between them.</extracomment>
    <source></source><translation>Jugador</translation></message>
  <message id="highscores_html_time"><extracomment>Column heading.</extracomment>
    <source></source><translation>Tiempo</translation></message>
  <message id="highscores_html_failures"><extracomment>Column heading: failed attempts of one player, or pairs of two players, 3 : 5.</extracomment>
    <source></source><translation>Fallos / marcador</translation></message>
  <message id="highscores_html_cards"><extracomment>Column heading: columns and rows of the board, 4x3.</extracomment>
    <source></source><translation>Cartas</translation></message>
  <message id="highscores_html_rounds"><extracomment>Column heading: number of rounds.</extracomment>
    <source></source><translation>Rondas</translation></message>
  <message id="highscores_html_mode"><extracomment>Column heading: one player or two.</extracomment>
    <source></source><translation>Modo</translation></message>
  <message id="highscores_empty"><extracomment>The only row while there is no result.</extracomment>
    <source></source><translation>Aún no hay resultados</translation></message>
  <message id="highscores_mode_solo"><extracomment>Mode of a result of one player.</extracomment>
    <source></source><translation>Un jugador</translation></message>
  <message id="highscores_mode_versus"><extracomment>Mode of a result of two players.</extracomment>
    <source></source><translation>1 contra 1</translation></message>

  <!-- Menus -->
  <message id="menu_game"><extracomment>Menu bar.</extracomment>
    <source></source><translation>Partida</translation></message>
  <message id="menu_new_game"><extracomment>Game menu; starts a game.</extracomment>
    <source></source><translation>Nueva partida</translation></message>
  <message id="menu_end_game"><extracomment>Game menu; ends the running game.</extracomment>
    <source></source><translation>Terminar partida</translation></message>
  <message id="menu_open_highscores_html"><extracomment>Game menu; as open_highscores_html.</extracomment>
    <source></source><translation>Puntuaciones en el navegador</translation></message>
  <message id="menu_restore_highscores"><extracomment>Game menu; brings back what a reset removed.</extracomment>
    <source></source><translation>Recuperar puntuaciones</translation></message>
  <message id="menu_preferences"><extracomment>Game menu; opens the preferences.</extracomment>
    <source></source><translation>Preferencias…</translation></message>
  <message id="menu_quit"><extracomment>Game menu; ends the program.</extracomment>
    <source></source><translation>Salir</translation></message>
  <message id="menu_view"><extracomment>Menu bar.</extracomment>
    <source></source><translation>Ver</translation></message>
  <message id="menu_full_screen"><extracomment>View menu; on or off.</extracomment>
    <source></source><translation>Pantalla completa</translation></message>
  <message id="menu_help"><extracomment>Menu bar.</extracomment>
    <source></source><translation>Ayuda</translation></message>
  <message id="menu_status"><extracomment>Help menu; a screen reader says how the game stands. Nothing is shown.</extracomment>
    <source></source><translation>Anunciar el marcador</translation></message>
  <message id="menu_keyboard"><extracomment>Help menu; shows keyboard_help.</extracomment>
    <source></source><translation>Teclado</translation></message>
  <message id="menu_about"><extracomment>Help menu; shows about_text.</extracomment>
    <source></source><translation>Acerca de Paircade</translation></message>
  <message id="keyboard_help"><extracomment>Help text, one line a key.</extracomment>
    <source></source><translation>Tab: pasar de un control a otro
Flechas: moverse por el tablero
Inicio, Fin: primera y última carta de la fila
Ctrl+Inicio, Ctrl+Fin: primera y última carta del tablero
Espacio, Intro: dar la vuelta a la carta
Alt y una letra subrayada: ese control o menú
F1: que el lector de pantalla diga el tiempo y el marcador
Ctrl+N: nueva partida
F11: pantalla completa
Ctrl+coma: preferencias
Ctrl+Q: salir</translation></message>
  <message id="about_text"><extracomment>About the program. %1: version number.</extracomment>
    <source></source><translation>Paircade %1

Un juego para una o dos personas: da la vuelta a las cartas y encuentra las parejas.

Programa: GPL-3.0-or-later
Imágenes y sonidos: CC-BY-SA-4.0</translation></message>

  <!-- Keyboard letters: one letter that occurs in the text, written as it is there; unique among the texts seen together -->
  <message id="mnemonic_menu_game"><extracomment>Letter underlined in menu_game.</extracomment><source></source><translation>P</translation></message>
  <message id="mnemonic_menu_view"><extracomment>Letter underlined in menu_view.</extracomment><source></source><translation>V</translation></message>
  <message id="mnemonic_menu_help"><extracomment>Letter underlined in menu_help.</extracomment><source></source><translation>A</translation></message>
  <message id="mnemonic_reset_highscores"><extracomment>Letter underlined in reset_highscores.</extracomment><source></source><translation>B</translation></message>
  <message id="mnemonic_open_highscores_html"><extracomment>Letter underlined in open_highscores_html.</extracomment><source></source><translation>n</translation></message>
  <message id="mnemonic_versus_mode"><extracomment>Letter underlined in versus_mode.</extracomment><source></source><translation>M</translation></message>
  <message id="mnemonic_start_game"><extracomment>Letter underlined in start_game.</extracomment><source></source><translation>J</translation></message>
  <message id="mnemonic_start_versus_game"><extracomment>Letter underlined in start_versus_game.</extracomment><source></source><translation>E</translation></message>
  <message id="mnemonic_end_game"><extracomment>Letter underlined in end_game.</extracomment><source></source><translation>T</translation></message>
  <message id="mnemonic_menu_new_game"><extracomment>Letter underlined in menu_new_game.</extracomment><source></source><translation>N</translation></message>
  <message id="mnemonic_menu_end_game"><extracomment>Letter underlined in menu_end_game.</extracomment><source></source><translation>T</translation></message>
  <message id="mnemonic_menu_open_highscores_html"><extracomment>Letter underlined in menu_open_highscores_html.</extracomment><source></source><translation>v</translation></message>
  <message id="mnemonic_menu_restore_highscores"><extracomment>Letter underlined in menu_restore_highscores.</extracomment><source></source><translation>R</translation></message>
  <message id="mnemonic_menu_preferences"><extracomment>Letter underlined in menu_preferences.</extracomment><source></source><translation>P</translation></message>
  <message id="mnemonic_menu_quit"><extracomment>Letter underlined in menu_quit.</extracomment><source></source><translation>S</translation></message>
  <message id="mnemonic_menu_full_screen"><extracomment>Letter underlined in menu_full_screen.</extracomment><source></source><translation>P</translation></message>
  <message id="mnemonic_menu_status"><extracomment>Letter underlined in menu_status.</extracomment><source></source><translation>n</translation></message>
  <message id="mnemonic_menu_keyboard"><extracomment>Letter underlined in menu_keyboard.</extracomment><source></source><translation>T</translation></message>
  <message id="mnemonic_menu_about"><extracomment>Letter underlined in menu_about.</extracomment><source></source><translation>A</translation></message>
  <message id="mnemonic_preferences_rounds"><extracomment>Letter underlined in preferences_rounds.</extracomment><source></source><translation>R</translation></message>
  <message id="mnemonic_preferences_card_layout"><extracomment>Letter underlined in preferences_card_layout.</extracomment><source></source><translation>T</translation></message>
  <message id="mnemonic_preferences_remove_match"><extracomment>Letter underlined in preferences_remove_match.</extracomment><source></source><translation>Q</translation></message>
  <message id="mnemonic_preferences_deck"><extracomment>Letter underlined in preferences_deck.</extracomment><source></source><translation>B</translation></message>
  <message id="mnemonic_preferences_photos_allow"><extracomment>Letter underlined in preferences_photos_allow.</extracomment><source></source><translation>P</translation></message>
  <message id="mnemonic_preferences_photos_change"><extracomment>Letter underlined in preferences_photos_change.</extracomment><source></source><translation>C</translation></message>
  <message id="mnemonic_preferences_album"><extracomment>Letter underlined in preferences_album.</extracomment><source></source><translation>n</translation></message>
  <message id="mnemonic_preferences_play_sounds"><extracomment>Letter underlined in preferences_play_sounds.</extracomment><source></source><translation>s</translation></message>
  <message id="mnemonic_preferences_volume"><extracomment>Letter underlined in preferences_volume.</extracomment><source></source><translation>V</translation></message>
  <message id="mnemonic_preferences_full_screen"><extracomment>Letter underlined in preferences_full_screen.</extracomment><source></source><translation>I</translation></message>

  <!-- Screen readers -->
  <message id="window_accessible_name"><extracomment>Name of the main window.</extracomment>
    <source></source><translation>Paircade</translation></message>
  <message id="board_accessible_name"><extracomment>Name of the board.</extracomment>
    <source></source><translation>Cartas</translation></message>
  <message id="title_accessible_name"><extracomment>Name of the line above the board, which tells whose turn it is, the round or the result.</extracomment>
    <source></source><translation>Estado de la partida</translation></message>
  <message id="tile_hidden"><extracomment>A card whose back shows. %1: row; %2: column, both from 1.</extracomment>
    <source></source><translation>Fila %1, columna %2, boca abajo</translation></message>
  <message id="tile_turned"><extracomment>A turned card. %1: row; %2: column; %3: name of the picture.</extracomment>
    <source></source><translation>Fila %1, columna %2, %3</translation></message>
  <message id="tile_found"><extracomment>A card whose pair was found. %1: row; %2: column; %3: name of the picture.</extracomment>
    <source></source><translation>Fila %1, columna %2, %3, pareja encontrada</translation></message>
  <message id="tile_removed"><extracomment>A place whose card was found and taken off. %1: row; %2: column.</extracomment>
    <source></source><translation>Fila %1, columna %2, vacía</translation></message>
  <message id="picture_without_name"><extracomment>Name of a picture that has none, such as a photo. %1: number of the picture, from 1.</extracomment>
    <source></source><translation>imagen %1</translation></message>

  <!-- Said by screen readers; a full stop is put after a text that ends in no mark of its own -->
  <message id="said_dealt"><extracomment>A new board lies there. %1: rows, at least 3; %2: columns, at least 4.</extracomment>
    <source></source><translation>Cartas repartidas: %1 filas, %2 columnas</translation></message>
  <message id="said_pair"><extracomment>The second card turned makes a pair. %1: name of the picture.</extracomment>
    <source></source><translation>Una pareja: %1</translation></message>
  <message id="said_no_pair"><extracomment>The second card turned makes no pair; its name was said just before.</extracomment>
    <source></source><translation>No son pareja</translation></message>
  <message id="said_back"><extracomment>Both cards that made no pair are turned back.</extracomment>
    <source></source><translation>Otra vez boca abajo</translation></message>
  <message id="status_pairs_left"><extracomment>%1: number of pairs still to find, from 1.</extracomment>
    <source></source><translation>Parejas por encontrar: %1</translation></message>
  <message id="status_no_game"><extracomment>Said in place of the score.</extracomment>
    <source></source><translation>No hay ninguna partida en curso.</translation></message>

  <!-- Pictures of the Cyberpunk deck -->
  <message id="card_can"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Lata</translation></message>
  <message id="card_cat"><extracomment>Picture, Cyberpunk and Kids.</extracomment><source></source><translation>Gato</translation></message>
  <message id="card_drone"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Dron</translation></message>
  <message id="card_eye"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Ojo</translation></message>
  <message id="card_globe"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Globo terráqueo</translation></message>
  <message id="card_headphones"><extracomment>Picture, Cyberpunk and 80s.</extracomment><source></source><translation>Auriculares</translation></message>
  <message id="card_heart"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Corazón</translation></message>
  <message id="card_hover_car"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Coche volador</translation></message>
  <message id="card_jellyfish"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Medusa</translation></message>
  <message id="card_microchip"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Microchip</translation></message>
  <message id="card_motorcycle"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Moto</translation></message>
  <message id="card_noodle_bowl"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Tazón de fideos</translation></message>
  <message id="card_padlock"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Candado</translation></message>
  <message id="card_palm"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Palmera</translation></message>
  <message id="card_rain_boots"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Botas de agua</translation></message>
  <message id="card_robot"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Robot</translation></message>
  <message id="card_robot_dog"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Perro robot</translation></message>
  <message id="card_robot_hand"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Mano robótica</translation></message>
  <message id="card_satellite_dish"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Antena parabólica</translation></message>
  <message id="card_skyscraper"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Rascacielos</translation></message>
  <message id="card_sneaker"><extracomment>Picture, Cyberpunk and 80s.</extracomment><source></source><translation>Zapatilla deportiva</translation></message>
  <message id="card_umbrella"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Paraguas</translation></message>
  <message id="card_vending_machine"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Máquina de bebidas</translation></message>
  <message id="card_vr_goggles"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Gafas VR</translation></message>

  <!-- Pictures of the Kids deck that no deck above has -->
  <message id="card_balloon"><extracomment>Picture, Kids.</extracomment><source></source><translation>Globo aerostático</translation></message>
  <message id="card_bee"><extracomment>Picture, Kids.</extracomment><source></source><translation>Abeja</translation></message>
  <message id="card_crab"><extracomment>Picture, Kids.</extracomment><source></source><translation>Cangrejo</translation></message>
  <message id="card_dinosaur"><extracomment>Picture, Kids.</extracomment><source></source><translation>Dinosaurio</translation></message>
  <message id="card_duck"><extracomment>Picture, Kids.</extracomment><source></source><translation>Pato</translation></message>
  <message id="card_elephant"><extracomment>Picture, Kids.</extracomment><source></source><translation>Elefante</translation></message>
  <message id="card_fox"><extracomment>Picture, Kids.</extracomment><source></source><translation>Zorro</translation></message>
  <message id="card_frog"><extracomment>Picture, Kids.</extracomment><source></source><translation>Rana</translation></message>
  <message id="card_giraffe"><extracomment>Picture, Kids.</extracomment><source></source><translation>Jirafa</translation></message>
  <message id="card_hedgehog"><extracomment>Picture, Kids.</extracomment><source></source><translation>Erizo</translation></message>
  <message id="card_ladybird"><extracomment>Picture, Kids.</extracomment><source></source><translation>Mariquita</translation></message>
  <message id="card_lion"><extracomment>Picture, Kids.</extracomment><source></source><translation>León</translation></message>
  <message id="card_octopus"><extracomment>Picture, Kids.</extracomment><source></source><translation>Pulpo</translation></message>
  <message id="card_owl"><extracomment>Picture, Kids and 70s.</extracomment><source></source><translation>Búho</translation></message>
  <message id="card_penguin"><extracomment>Picture, Kids.</extracomment><source></source><translation>Pingüino</translation></message>
  <message id="card_rabbit"><extracomment>Picture, Kids.</extracomment><source></source><translation>Conejo</translation></message>
  <message id="card_rocket"><extracomment>Picture, Kids.</extracomment><source></source><translation>Cohete</translation></message>
  <message id="card_sailing_boat"><extracomment>Picture, Kids.</extracomment><source></source><translation>Velero</translation></message>
  <message id="card_snail"><extracomment>Picture, Kids.</extracomment><source></source><translation>Caracol</translation></message>
  <message id="card_tractor"><extracomment>Picture, Kids.</extracomment><source></source><translation>Tractor</translation></message>
  <message id="card_train"><extracomment>Picture, Kids.</extracomment><source></source><translation>Locomotora</translation></message>
  <message id="card_turtle"><extracomment>Picture, Kids.</extracomment><source></source><translation>Tortuga</translation></message>
  <message id="card_whale"><extracomment>Picture, Kids.</extracomment><source></source><translation>Ballena</translation></message>

  <!-- Pictures of the 70s deck that no deck above has -->
  <message id="card_bicycle"><extracomment>Picture, 70s.</extracomment><source></source><translation>Bicicleta</translation></message>
  <message id="card_butterfly"><extracomment>Picture, 70s.</extracomment><source></source><translation>Mariposa</translation></message>
  <message id="card_cactus"><extracomment>Picture, 70s.</extracomment><source></source><translation>Cactus</translation></message>
  <message id="card_camper_van"><extracomment>Picture, 70s.</extracomment><source></source><translation>Furgoneta camper</translation></message>
  <message id="card_daisy"><extracomment>Picture, 70s.</extracomment><source></source><translation>Margarita</translation></message>
  <message id="card_disco_ball"><extracomment>Picture, 70s.</extracomment><source></source><translation>Bola de discoteca</translation></message>
  <message id="card_dove"><extracomment>Picture, 70s.</extracomment><source></source><translation>Paloma</translation></message>
  <message id="card_egg_chair"><extracomment>Picture, 70s.</extracomment><source></source><translation>Sillón bola</translation></message>
  <message id="card_flared_trousers"><extracomment>Picture, 70s.</extracomment><source></source><translation>Pantalón de campana</translation></message>
  <message id="card_fondue_pot"><extracomment>Picture, 70s.</extracomment><source></source><translation>Fondue</translation></message>
  <message id="card_guitar"><extracomment>Picture, 70s.</extracomment><source></source><translation>Guitarra</translation></message>
  <message id="card_lava_lamp"><extracomment>Picture, 70s.</extracomment><source></source><translation>Lámpara de lava</translation></message>
  <message id="card_mushroom"><extracomment>Picture, 70s.</extracomment><source></source><translation>Seta</translation></message>
  <message id="card_orange_slice"><extracomment>Picture, 70s.</extracomment><source></source><translation>Naranja</translation></message>
  <message id="card_pendant_lamp"><extracomment>Picture, 70s.</extracomment><source></source><translation>Lámpara colgante</translation></message>
  <message id="card_platform_shoe"><extracomment>Picture, 70s.</extracomment><source></source><translation>Zapato de plataforma</translation></message>
  <message id="card_roller_skate"><extracomment>Picture, 70s.</extracomment><source></source><translation>Patín de ruedas</translation></message>
  <message id="card_sunglasses"><extracomment>Picture, 70s and 80s.</extracomment><source></source><translation>Gafas de sol</translation></message>
  <message id="card_surfboard"><extracomment>Picture, 70s.</extracomment><source></source><translation>Tabla de surf</translation></message>
  <message id="card_telephone"><extracomment>Picture, 70s and 80s.</extracomment><source></source><translation>Teléfono</translation></message>
  <message id="card_television"><extracomment>Picture, 70s.</extracomment><source></source><translation>Televisor</translation></message>
  <message id="card_typewriter"><extracomment>Picture, 70s.</extracomment><source></source><translation>Máquina de escribir</translation></message>
  <message id="card_vinyl_record"><extracomment>Picture, 70s.</extracomment><source></source><translation>Disco de vinilo</translation></message>

  <!-- Pictures of the 80s deck that no deck above has -->
  <message id="card_arcade_machine"><extracomment>Picture, 80s.</extracomment><source></source><translation>Máquina recreativa</translation></message>
  <message id="card_bmx_bike"><extracomment>Picture, 80s.</extracomment><source></source><translation>Bicicleta BMX</translation></message>
  <message id="card_boombox"><extracomment>Picture, 80s.</extracomment><source></source><translation>Radiocasete</translation></message>
  <message id="card_cassette_tape"><extracomment>Picture, 80s.</extracomment><source></source><translation>Casete</translation></message>
  <message id="card_colour_cube"><extracomment>Picture, 80s.</extracomment><source></source><translation>Cubo mágico</translation></message>
  <message id="card_flamingo"><extracomment>Picture, 80s.</extracomment><source></source><translation>Flamenco</translation></message>
  <message id="card_floppy_disk"><extracomment>Picture, 80s.</extracomment><source></source><translation>Disquete</translation></message>
  <message id="card_gum_machine"><extracomment>Picture, 80s.</extracomment><source></source><translation>Máquina de chicles</translation></message>
  <message id="card_home_computer"><extracomment>Picture, 80s.</extracomment><source></source><translation>Ordenador</translation></message>
  <message id="card_ice_pop"><extracomment>Picture, 80s.</extracomment><source></source><translation>Helado de palo</translation></message>
  <message id="card_instant_camera"><extracomment>Picture, 80s.</extracomment><source></source><translation>Cámara</translation></message>
  <message id="card_joystick"><extracomment>Picture, 80s.</extracomment><source></source><translation>Joystick</translation></message>
  <message id="card_lightning_bolt"><extracomment>Picture, 80s.</extracomment><source></source><translation>Rayo</translation></message>
  <message id="card_mobile_phone"><extracomment>Picture, 80s.</extracomment><source></source><translation>Teléfono móvil</translation></message>
  <message id="card_palm_tree"><extracomment>Picture, 80s.</extracomment><source></source><translation>Palmera</translation></message>
  <message id="card_popcorn"><extracomment>Picture, 80s.</extracomment><source></source><translation>Palomitas</translation></message>
  <message id="card_skateboard"><extracomment>Picture, 80s.</extracomment><source></source><translation>Monopatín</translation></message>
  <message id="card_sports_car"><extracomment>Picture, 80s.</extracomment><source></source><translation>Coche deportivo</translation></message>
  <message id="card_synthesizer"><extracomment>Picture, 80s.</extracomment><source></source><translation>Sintetizador</translation></message>
  <message id="card_wrist_watch"><extracomment>Picture, 80s.</extracomment><source></source><translation>Reloj</translation></message>

  <!-- The question for access to the photos -->
  <message id="photo_question_title"><extracomment>Heading of the question for access to the player’s photos.</extracomment>
    <source></source><translation>¿Jugar con tus propias fotos?</translation></message>
  <message id="photo_question_text"><extracomment>Under the heading: what the photos are for.</extracomment>
    <source></source><translation>Para las barajas de fotos, Paircade hace cartas con las imágenes de tu carpeta de imágenes. Solo las mira: no cambia ninguna y nada sale de este equipo.</translation></message>
  <message id="photo_question_all"><extracomment>Button, answer to the question.</extracomment>
    <source></source><translation>Todas las imágenes</translation></message>
  <message id="photo_question_all_consequence"><extracomment>Beside the button: what that answer gives.</extracomment>
    <source></source><translation>Tu carpeta de imágenes y sus álbumes</translation></message>
  <message id="photo_question_folder"><extracomment>Button, answer to the question; leads to a dialog.</extracomment>
    <source></source><translation>Elegir una carpeta…</translation></message>
  <message id="photo_question_folder_consequence"><extracomment>Beside the button: what that answer gives.</extracomment>
    <source></source><translation>Solo lo que hay en ella</translation></message>
  <message id="photo_question_none"><extracomment>Button, answer to the question.</extracomment>
    <source></source><translation>Sin acceso</translation></message>
  <message id="photo_question_none_consequence"><extracomment>Beside the button: what that answer gives.</extracomment>
    <source></source><translation>Solo las cuatro barajas del juego</translation></message>
  <message id="photo_question_foot"><extracomment>Last line of the question.</extracomment>
    <source></source><translation>Puedes cambiar de idea en las preferencias.</translation></message>
  <message id="photo_question_choose"><extracomment>Title of the dialog in which a folder is chosen.</extracomment>
    <source></source><translation>Elegir una carpeta</translation></message>
  <message id="mnemonic_photo_question_all"><extracomment>Letter underlined in photo_question_all.</extracomment><source></source><translation>T</translation></message>
  <message id="mnemonic_photo_question_folder"><extracomment>Letter underlined in photo_question_folder.</extracomment><source></source><translation>E</translation></message>
  <message id="mnemonic_photo_question_none"><extracomment>Letter underlined in photo_question_none.</extracomment><source></source><translation>S</translation></message>

  <!-- The desktop’s menu and the software centre: the build puts these into files of theirs -->
  <message id="desktop_generic_name"><extracomment>In the desktop’s menu: what kind of program this is.</extracomment>
    <source></source><translation>Juego de parejas</translation></message>
  <message id="desktop_comment"><extracomment>In the menu and the software centre: what the program does, without a full stop.</extracomment>
    <source></source><translation>Da la vuelta a las cartas y encuentra las parejas, a solas o a dúo</translation></message>
  <message id="desktop_keywords"><extracomment>Words that find the program in the menu, each with a semicolon after it.</extracomment>
    <source></source><translation>parejas;cartas;memoria;concentración;niños;</translation></message>
  <message id="store_description_play"><extracomment>First paragraph in the software centre.</extracomment>
    <source></source><translation>Da la vuelta a dos cartas cada vez, recuerda dónde está cada imagen y encuentra las parejas: a solas contra el reloj o dos personas por turnos.</translation></message>
  <message id="store_description_more"><extracomment>Second paragraph in the software centre.</extracomment>
    <source></source><translation>Hay cuatro barajas de dibujos, seis tableros de 4 × 3 a 8 × 5 y tantas rondas como quieras. Tus propias fotos también pueden ser una baraja; nunca salen del equipo. Los mejores resultados aparecen junto al tablero. Se puede jugar por completo con el ratón, con el teclado o con un lector de pantalla.</translation></message>
</context>
</TS>
