<?xml version="1.0" encoding="utf-8"?>
<!--
SPDX-FileCopyrightText: 2026 The Paircade authors
SPDX-License-Identifier: GPL-3.0-or-later
-->
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
  <name></name>

  <!-- Start forms and sidebar -->
  <message id="enter_name"><extracomment>Placeholder of the name field of the one-player form; also the header text before a game.</extracomment>
    <source></source><translation>Digite seu nome</translation></message>
  <message id="enter_player_names"><extracomment>Header text when a versus game lacks a name.</extracomment>
    <source></source><translation>Digitem os dois nomes</translation></message>
  <message id="player_one"><extracomment>Placeholder of the first versus field; stands in for the first player's name.</extracomment>
    <source></source><translation>Jogador 1</translation></message>
  <message id="player_two"><extracomment>Placeholder of the second versus field; stands in for the second player's name.</extracomment>
    <source></source><translation>Jogador 2</translation></message>
  <message id="unknown_player"><extracomment>Name stored with a one-player result that has none.</extracomment>
    <source></source><translation>Sem nome</translation></message>
  <message id="start_game"><extracomment>Button of the one-player form.</extracomment>
    <source></source><translation>Jogar</translation></message>
  <message id="start_versus_game"><extracomment>Button of the two-player form.</extracomment>
    <source></source><translation>Iniciar duelo</translation></message>
  <message id="end_game"><extracomment>Sidebar button while a game runs.</extracomment>
    <source></source><translation>Encerrar jogo</translation></message>
  <message id="versus_mode"><extracomment>Sidebar check box that switches to two players; also the heading above the versus highscores.</extracomment>
    <source></source><translation>Modo duelo</translation></message>
  <message id="reset_highscores"><extracomment>Sidebar button; removes all stored results.</extracomment>
    <source></source><translation>Apagar recordes</translation></message>
  <message id="open_highscores_html"><extracomment>Sidebar button; opens the highscore page in the web browser.</extracomment>
    <source></source><translation>Recordes no navegador</translation></message>
  <message id="best_times"><extracomment>Sidebar heading above the fastest results.</extracomment>
    <source></source><translation>Melhores tempos</translation></message>
  <message id="fewest_failed_attempts"><extracomment>Sidebar heading above the results with the fewest failed attempts.</extracomment>
    <source></source><translation>Menos erros</translation></message>
  <message id="time_label"><extracomment>Sidebar, below the logo. %1: time as minutes and seconds, 01:07.</extracomment>
    <source></source><translation>Tempo: %1</translation></message>
  <message id="failed_attempts_label"><extracomment>Sidebar, below the time. %1: number of failed attempts, from 0.</extracomment>
    <source></source><translation>Erros: %1</translation></message>

  <!-- Line above the board -->
  <message id="round_of_rounds"><extracomment>One player. %1: current round, from 1; %2: number of rounds.</extracomment>
    <source></source><translation>Rodada %1 de %2</translation></message>
  <message id="player_turn"><extracomment>Two players, nothing turned yet. %1: name of the player to move.</extracomment>
    <source></source><translation>%1, é a sua vez</translation></message>
  <message id="player_choose_second_card"><extracomment>Two players, one card turned. %1: name of the player to move.</extracomment>
    <source></source><translation>%1, escolha a segunda carta</translation></message>
  <message id="player_found_pair"><extracomment>Two players. %1: name of the player who found a pair. May be the last pair of the game.</extracomment>
    <source></source><translation>%1 encontrou um par!</translation></message>
  <message id="player_starts_round"><extracomment>Two players, a further round begins. %1: name of the player to move; %2: number of the round, from 2.</extracomment>
    <source></source><translation>%1 começa a rodada %2</translation></message>

  <!-- Results, shown large after a game -->
  <message id="singleplayer_result"><extracomment>One player. %1: name; %2: time as minutes and seconds; %3: number of failed attempts, from 0.</extracomment>
    <source></source><translation>Muito bem, %1! %2 · Erros: %3</translation></message>
  <message id="player_wins_score"><extracomment>Two players. %1: winner's name; %2: winner's pairs; %3: loser's pairs, from 0.</extracomment>
    <source></source><translation>%1 vence por %2 a %3!</translation></message>
  <message id="draw_score"><extracomment>Two players. %1 and %2: pairs of the first and of the second player, equal.</extracomment>
    <source></source><translation>Empate: %1 a %2</translation></message>

  <!-- Messages -->
  <message id="ok"><extracomment>Button that closes a message.</extracomment>
    <source></source><translation>OK</translation></message>
  <message id="not_enough_images_for_round"><extracomment>Message: a deck of the game has too few pictures. %1: different pictures needed; %2: round that could not be dealt.</extracomment>
    <source></source><translation>Este baralho não tem imagens suficientes. São necessárias %1 (rodada %2). Escolha outro baralho ou um tabuleiro menor nas preferências.</translation></message>
  <message id="iphoto_not_enough_images"><extracomment>Message: too few of the player's photos for a round, or no access to them. %1: photos needed.</extracomment>
    <source></source><translation>Não há fotos suficientes para uma rodada. São necessárias %1. Adicione mais fotos, ou escolha outro baralho ou um tabuleiro menor nas preferências.</translation></message>
  <message id="iphoto_not_enough_images_in_album"><extracomment>Message: too few photos in the chosen album, or no access to it. %1: photos needed.</extracomment>
    <source></source><translation>Este álbum não tem fotos suficientes para uma rodada. São necessárias %1. Adicione mais fotos à pasta do álbum, ou escolha outro baralho ou um tabuleiro menor nas preferências.</translation></message>
  <message id="iphoto_access_denied"><extracomment>Message, first line: a photo deck is chosen, but access to the photos is not allowed.</extracomment>
    <source></source><translation>O Paircade não tem acesso às suas fotos</translation></message>
  <message id="iphoto_access_denied_info"><extracomment>Message, below iphoto_access_denied. The quoted word is the caption in the preferences.</extracomment>
    <source></source><translation>Para jogar com suas próprias fotos, o Paircade precisa ver suas imagens. Você pode mudar isso nas preferências, em “Fotos”.</translation></message>
  <message id="iphoto_album_not_found"><extracomment>Message, first line: the folder of the chosen album is gone.</extracomment>
    <source></source><translation>O álbum de fotos não foi encontrado</translation></message>
  <message id="iphoto_album_not_found_info"><extracomment>Message, below iphoto_album_not_found.</extracomment>
    <source></source><translation>A pasta dele pode ter sido renomeada, movida ou excluída. Restaure a pasta ou escolha outro baralho nas preferências.</translation></message>
  <message id="iphoto_album_incomplete"><extracomment>Message, first line: the folder of the chosen album could not be read to its end.</extracomment>
    <source></source><translation>Não foi possível ler o álbum de fotos por completo.</translation></message>
  <message id="iphoto_album_incomplete_info"><extracomment>Message, below iphoto_album_incomplete.</extracomment>
    <source></source><translation>A pasta dele ou o disco onde ela está pode não estar disponível no momento. Tente de novo mais tarde ou escolha outro baralho nas preferências.</translation></message>
  <message id="iphoto_no_images_found"><extracomment>Message, first line: the pictures folder or the chosen album holds no photos.</extracomment>
    <source></source><translation>Nenhuma foto encontrada</translation></message>
  <message id="iphoto_no_images_found_info"><extracomment>Message, below iphoto_no_images_found.</extracomment>
    <source></source><translation>A pasta de onde este baralho tira as fotos não contém nenhuma. Adicione fotos a ela ou escolha outro baralho nas preferências.</translation></message>
  <message id="highscores_export_error_title"><extracomment>Message, first line: the highscore page could not be written. The system's own reason follows below.</extracomment>
    <source></source><translation>Não foi possível salvar a página de recordes</translation></message>
  <message id="already_running"><extracomment>Shown and printed at a second start when the running game does not answer.</extracomment>
    <source></source><translation>O Paircade já está aberto, mas não responde. Espere um momento e tente de novo. Se não resolver, feche antes o outro Paircade.</translation></message>

  <!-- Preferences -->
  <message id="play_rounds_label_singular"><extracomment>Beside the rounds control. %1: number of rounds, always 1.</extracomment>
    <source></source><translation>%1 rodada por jogo</translation></message>
  <message id="play_rounds_label_plural" numerus="yes"><extracomment>Beside the rounds control. %1: number of rounds, any but 1.</extracomment>
    <source></source><translation><numerusform>%1 rodada por jogo</numerusform><numerusform>%1 rodadas por jogo</numerusform></translation></message>
  <message id="card_layout_1"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>4 × 3, 6 pares</translation></message>
  <message id="card_layout_2"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>4 × 4, 8 pares</translation></message>
  <message id="card_layout_3"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>5 × 4, 10 pares</translation></message>
  <message id="card_layout_4"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>6 × 4, 12 pares</translation></message>
  <message id="card_layout_5"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>7 × 4, 14 pares</translation></message>
  <message id="card_layout_6"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>8 × 5, 20 pares</translation></message>
  <message id="preferences_accessible_name"><extracomment>Name of the preferences window for screen readers; no title shows.</extracomment>
    <source></source><translation>Preferências</translation></message>
  <message id="preferences_rounds"><extracomment>Caption before the number of rounds.</extracomment>
    <source></source><translation>Rodadas:</translation></message>
  <message id="preferences_card_layout"><extracomment>Caption before the number of the card layout.</extracomment>
    <source></source><translation>Tabuleiro:</translation></message>
  <message id="preferences_locked"><extracomment>Why the numbers of rounds and of the layout cannot be changed while a game runs.</extracomment>
    <source></source><translation>Pode ser alterado quando o jogo acabar.</translation></message>
  <message id="preferences_found_pairs"><extracomment>Caption before preferences_remove_match.</extracomment>
    <source></source><translation>Pares encontrados:</translation></message>
  <message id="preferences_remove_match"><extracomment>Check box: found pairs leave the board.</extracomment>
    <source></source><translation>Tirar do tabuleiro</translation></message>
  <message id="preferences_deck"><extracomment>Caption before the menu of the decks.</extracomment>
    <source></source><translation>Baralho:</translation></message>
  <message id="preferences_preview"><extracomment>For screen readers: the first pictures of the chosen deck. %1: their names, with commas between.</extracomment>
    <source></source><translation>Imagens do baralho: %1</translation></message>
  <message id="preferences_no_preview"><extracomment>For screen readers: backs of cards in place of the pictures, which are the player’s own photos or missing.</extracomment>
    <source></source><translation>Versos das cartas</translation></message>
  <message id="preferences_photos"><extracomment>Caption before what the game may see of the player’s photos; quoted in iphoto_access_denied_info.</extracomment>
    <source></source><translation>Fotos:</translation></message>
  <message id="preferences_photos_not_asked"><extracomment>After the caption: the player was not yet asked for the photos.</extracomment>
    <source></source><translation>Ainda não definido</translation></message>
  <message id="preferences_photos_all"><extracomment>After the caption: the game may use all pictures.</extracomment>
    <source></source><translation>Todas as imagens</translation></message>
  <message id="preferences_photos_only"><extracomment>After the caption: the game may use the pictures of one folder. %1: the folder’s name.</extracomment>
    <source></source><translation>Só “%1”</translation></message>
  <message id="preferences_photos_none"><extracomment>After the caption: the game may use no pictures.</extracomment>
    <source></source><translation>Sem acesso</translation></message>
  <message id="preferences_photos_allow"><extracomment>Button: lets the player allow access to the photos for the first time.</extracomment>
    <source></source><translation>Permitir…</translation></message>
  <message id="preferences_photos_change"><extracomment>Button: lets the player change the access to the photos.</extracomment>
    <source></source><translation>Alterar…</translation></message>
  <message id="preferences_photos_unavailable"><extracomment>Why the button beside the photos cannot be pressed.</extracomment>
    <source></source><translation>Esta versão não pode usar suas fotos.</translation></message>
  <message id="preferences_album"><extracomment>Check box: keeps an album named Paircade.</extracomment>
    <source></source><translation>Manter um álbum Paircade</translation></message>
  <message id="preferences_sound"><extracomment>Caption before preferences_play_sounds.</extracomment>
    <source></source><translation>Som:</translation></message>
  <message id="preferences_play_sounds"><extracomment>Check box.</extracomment>
    <source></source><translation>Tocar sons</translation></message>
  <message id="preferences_volume"><extracomment>Caption before the slider of the volume.</extracomment>
    <source></source><translation>Volume:</translation></message>
  <message id="volume_percent"><extracomment>Beside the slider of the volume. %1: 0 to 100. Where a space belongs before the sign it does not break.</extracomment>
    <source></source><translation>%1%</translation></message>
  <message id="preferences_window"><extracomment>Caption before preferences_full_screen.</extracomment>
    <source></source><translation>Janela:</translation></message>
  <message id="preferences_full_screen"><extracomment>Check box: the game starts in full screen.</extracomment>
    <source></source><translation>Iniciar em tela cheia</translation></message>

  <!-- Highscore page in the browser -->
  <message id="highscores_html_title"><extracomment>Title and main heading of the page.</extracomment>
    <source></source><translation>Recordes do Paircade</translation></message>
  <message id="highscores_html_subtitle"><extracomment>Below the heading. %1: internal number, left out on purpose; %2: card layout, 1 to 6; %3: rounds per game.</extracomment>
    <source></source><translation>Todos os resultados salvos. Ajustes atuais: tabuleiro %2 de 6, rodadas: %3.</translation></message>
  <message id="highscores_html_generated"><extracomment>Below the subtitle. %1: date and time of the page.</extracomment>
    <source></source><translation>Gerado em %1</translation></message>
  <message id="highscores_html_player"><extracomment>Column heading: one name, or two with vs between them.</extracomment>
    <source></source><translation>Jogador</translation></message>
  <message id="highscores_html_time"><extracomment>Column heading.</extracomment>
    <source></source><translation>Tempo</translation></message>
  <message id="highscores_html_failures"><extracomment>Column heading: failed attempts of one player, or pairs of two players, 3 : 5.</extracomment>
    <source></source><translation>Erros / placar</translation></message>
  <message id="highscores_html_cards"><extracomment>Column heading: columns and rows of the board, 4x3.</extracomment>
    <source></source><translation>Cartas</translation></message>
  <message id="highscores_html_rounds"><extracomment>Column heading: number of rounds.</extracomment>
    <source></source><translation>Rodadas</translation></message>
  <message id="highscores_html_mode"><extracomment>Column heading: one player or two.</extracomment>
    <source></source><translation>Modo</translation></message>
  <message id="highscores_empty"><extracomment>The only row while there is no result.</extracomment>
    <source></source><translation>Ainda não há resultados</translation></message>
  <message id="highscores_mode_solo"><extracomment>Mode of a result of one player.</extracomment>
    <source></source><translation>Um jogador</translation></message>
  <message id="highscores_mode_versus"><extracomment>Mode of a result of two players.</extracomment>
    <source></source><translation>1 contra 1</translation></message>

  <!-- Menus -->
  <message id="menu_game"><extracomment>Menu bar.</extracomment>
    <source></source><translation>Jogo</translation></message>
  <message id="menu_new_game"><extracomment>Game menu; starts a game.</extracomment>
    <source></source><translation>Novo jogo</translation></message>
  <message id="menu_end_game"><extracomment>Game menu; ends the running game.</extracomment>
    <source></source><translation>Encerrar jogo</translation></message>
  <message id="menu_open_highscores_html"><extracomment>Game menu; as open_highscores_html.</extracomment>
    <source></source><translation>Recordes no navegador</translation></message>
  <message id="menu_restore_highscores"><extracomment>Game menu; brings back what a reset removed.</extracomment>
    <source></source><translation>Recuperar recordes</translation></message>
  <message id="menu_preferences"><extracomment>Game menu; opens the preferences.</extracomment>
    <source></source><translation>Preferências…</translation></message>
  <message id="menu_quit"><extracomment>Game menu; ends the program.</extracomment>
    <source></source><translation>Sair</translation></message>
  <message id="menu_view"><extracomment>Menu bar.</extracomment>
    <source></source><translation>Exibir</translation></message>
  <message id="menu_full_screen"><extracomment>View menu; on or off.</extracomment>
    <source></source><translation>Tela cheia</translation></message>
  <message id="menu_help"><extracomment>Menu bar.</extracomment>
    <source></source><translation>Ajuda</translation></message>
  <message id="menu_status"><extracomment>Help menu; a screen reader says how the game stands. Nothing is shown.</extracomment>
    <source></source><translation>Anunciar o placar</translation></message>
  <message id="menu_keyboard"><extracomment>Help menu; shows keyboard_help.</extracomment>
    <source></source><translation>Teclado</translation></message>
  <message id="menu_about"><extracomment>Help menu; shows about_text.</extracomment>
    <source></source><translation>Sobre o Paircade</translation></message>
  <message id="keyboard_help"><extracomment>Help text, one line a key.</extracomment>
    <source></source><translation>Tab: passar de um controle a outro
Setas: mover-se pelo tabuleiro
Home, End: primeira e última carta da linha
Ctrl+Home, Ctrl+End: primeira e última carta do tabuleiro
Espaço, Enter: virar a carta
Alt e uma letra sublinhada: esse controle ou menu
F1: ouvir o tempo e o placar no leitor de tela
Ctrl+N: novo jogo
F11: tela cheia
Ctrl+vírgula: preferências
Ctrl+Q: sair</translation></message>
  <message id="about_text"><extracomment>About the program. %1: version number.</extracomment>
    <source></source><translation>Paircade %1

Um jogo para uma ou duas pessoas: vire as cartas e encontre os pares.

Programa: GPL-3.0-or-later
Imagens e sons: CC-BY-SA-4.0</translation></message>

  <!-- Keyboard letters: one letter that occurs in the text, written as it is there; unique among the texts seen together -->
  <message id="mnemonic_menu_game"><extracomment>Letter underlined in menu_game.</extracomment><source></source><translation>J</translation></message>
  <message id="mnemonic_menu_view"><extracomment>Letter underlined in menu_view.</extracomment><source></source><translation>x</translation></message>
  <message id="mnemonic_menu_help"><extracomment>Letter underlined in menu_help.</extracomment><source></source><translation>u</translation></message>
  <message id="mnemonic_reset_highscores"><extracomment>Letter underlined in reset_highscores.</extracomment><source></source><translation>A</translation></message>
  <message id="mnemonic_open_highscores_html"><extracomment>Letter underlined in open_highscores_html.</extracomment><source></source><translation>R</translation></message>
  <message id="mnemonic_versus_mode"><extracomment>Letter underlined in versus_mode.</extracomment><source></source><translation>M</translation></message>
  <message id="mnemonic_start_game"><extracomment>Letter underlined in start_game.</extracomment><source></source><translation>g</translation></message>
  <message id="mnemonic_start_versus_game"><extracomment>Letter underlined in start_versus_game.</extracomment><source></source><translation>I</translation></message>
  <message id="mnemonic_end_game"><extracomment>Letter underlined in end_game.</extracomment><source></source><translation>E</translation></message>
  <message id="mnemonic_menu_new_game"><extracomment>Letter underlined in menu_new_game.</extracomment><source></source><translation>N</translation></message>
  <message id="mnemonic_menu_end_game"><extracomment>Letter underlined in menu_end_game.</extracomment><source></source><translation>E</translation></message>
  <message id="mnemonic_menu_open_highscores_html"><extracomment>Letter underlined in menu_open_highscores_html.</extracomment><source></source><translation>v</translation></message>
  <message id="mnemonic_menu_restore_highscores"><extracomment>Letter underlined in menu_restore_highscores.</extracomment><source></source><translation>R</translation></message>
  <message id="mnemonic_menu_preferences"><extracomment>Letter underlined in menu_preferences.</extracomment><source></source><translation>P</translation></message>
  <message id="mnemonic_menu_quit"><extracomment>Letter underlined in menu_quit.</extracomment><source></source><translation>S</translation></message>
  <message id="mnemonic_menu_full_screen"><extracomment>Letter underlined in menu_full_screen.</extracomment><source></source><translation>T</translation></message>
  <message id="mnemonic_menu_status"><extracomment>Letter underlined in menu_status.</extracomment><source></source><translation>n</translation></message>
  <message id="mnemonic_menu_keyboard"><extracomment>Letter underlined in menu_keyboard.</extracomment><source></source><translation>T</translation></message>
  <message id="mnemonic_menu_about"><extracomment>Letter underlined in menu_about.</extracomment><source></source><translation>S</translation></message>
  <message id="mnemonic_preferences_rounds"><extracomment>Letter underlined in preferences_rounds.</extracomment><source></source><translation>R</translation></message>
  <message id="mnemonic_preferences_card_layout"><extracomment>Letter underlined in preferences_card_layout.</extracomment><source></source><translation>b</translation></message>
  <message id="mnemonic_preferences_remove_match"><extracomment>Letter underlined in preferences_remove_match.</extracomment><source></source><translation>T</translation></message>
  <message id="mnemonic_preferences_deck"><extracomment>Letter underlined in preferences_deck.</extracomment><source></source><translation>h</translation></message>
  <message id="mnemonic_preferences_photos_allow"><extracomment>Letter underlined in preferences_photos_allow.</extracomment><source></source><translation>P</translation></message>
  <message id="mnemonic_preferences_photos_change"><extracomment>Letter underlined in preferences_photos_change.</extracomment><source></source><translation>A</translation></message>
  <message id="mnemonic_preferences_album"><extracomment>Letter underlined in preferences_album.</extracomment><source></source><translation>M</translation></message>
  <message id="mnemonic_preferences_play_sounds"><extracomment>Letter underlined in preferences_play_sounds.</extracomment><source></source><translation>s</translation></message>
  <message id="mnemonic_preferences_volume"><extracomment>Letter underlined in preferences_volume.</extracomment><source></source><translation>V</translation></message>
  <message id="mnemonic_preferences_full_screen"><extracomment>Letter underlined in preferences_full_screen.</extracomment><source></source><translation>I</translation></message>

  <!-- Screen readers -->
  <message id="window_accessible_name"><extracomment>Name of the main window.</extracomment>
    <source></source><translation>Paircade</translation></message>
  <message id="board_accessible_name"><extracomment>Name of the board.</extracomment>
    <source></source><translation>Cartas</translation></message>
  <message id="title_accessible_name"><extracomment>Name of the line above the board, which tells whose turn it is, the round or the result.</extracomment>
    <source></source><translation>Situação do jogo</translation></message>
  <message id="tile_hidden"><extracomment>A card whose back shows. %1: row; %2: column, both from 1.</extracomment>
    <source></source><translation>Linha %1, coluna %2, virada para baixo</translation></message>
  <message id="tile_turned"><extracomment>A turned card. %1: row; %2: column; %3: name of the picture.</extracomment>
    <source></source><translation>Linha %1, coluna %2, %3</translation></message>
  <message id="tile_found"><extracomment>A card whose pair was found. %1: row; %2: column; %3: name of the picture.</extracomment>
    <source></source><translation>Linha %1, coluna %2, %3, par encontrado</translation></message>
  <message id="tile_removed"><extracomment>A place whose card was found and taken off. %1: row; %2: column.</extracomment>
    <source></source><translation>Linha %1, coluna %2, vazia</translation></message>
  <message id="picture_without_name"><extracomment>Name of a picture that has none, such as a photo. %1: number of the picture, from 1.</extracomment>
    <source></source><translation>imagem %1</translation></message>

  <!-- Said by screen readers; a full stop is put after a text that ends in no mark of its own -->
  <message id="said_dealt"><extracomment>A new board lies there. %1: rows, at least 3; %2: columns, at least 4.</extracomment>
    <source></source><translation>Cartas distribuídas: %1 linhas, %2 colunas</translation></message>
  <message id="said_pair"><extracomment>The second card turned makes a pair. %1: name of the picture.</extracomment>
    <source></source><translation>Um par: %1</translation></message>
  <message id="said_no_pair"><extracomment>The second card turned makes no pair; its name was said just before.</extracomment>
    <source></source><translation>Não formam par</translation></message>
  <message id="said_back"><extracomment>Both cards that made no pair are turned back.</extracomment>
    <source></source><translation>Viradas para baixo</translation></message>
  <message id="status_pairs_left"><extracomment>%1: number of pairs still to find, from 1.</extracomment>
    <source></source><translation>Pares restantes: %1</translation></message>
  <message id="status_no_game"><extracomment>Said in place of the score.</extracomment>
    <source></source><translation>Nenhum jogo em andamento.</translation></message>

  <!-- Pictures of the Cyberpunk deck -->
  <message id="card_can"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Latinha</translation></message>
  <message id="card_cat"><extracomment>Picture, Cyberpunk and Kids.</extracomment><source></source><translation>Gato</translation></message>
  <message id="card_drone"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Drone</translation></message>
  <message id="card_eye"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Olho</translation></message>
  <message id="card_globe"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Globo terrestre</translation></message>
  <message id="card_headphones"><extracomment>Picture, Cyberpunk and 80s.</extracomment><source></source><translation>Fones de ouvido</translation></message>
  <message id="card_heart"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Coração</translation></message>
  <message id="card_hover_car"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Carro voador</translation></message>
  <message id="card_jellyfish"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Água-viva</translation></message>
  <message id="card_microchip"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Microchip</translation></message>
  <message id="card_motorcycle"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Moto</translation></message>
  <message id="card_noodle_bowl"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Tigela de lámen</translation></message>
  <message id="card_padlock"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Cadeado</translation></message>
  <message id="card_palm"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Palmeira</translation></message>
  <message id="card_rain_boots"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Galochas</translation></message>
  <message id="card_robot"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Robô</translation></message>
  <message id="card_robot_dog"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Cão robô</translation></message>
  <message id="card_robot_hand"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Mão robótica</translation></message>
  <message id="card_satellite_dish"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Antena parabólica</translation></message>
  <message id="card_skyscraper"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Arranha-céu</translation></message>
  <message id="card_sneaker"><extracomment>Picture, Cyberpunk and 80s.</extracomment><source></source><translation>Tênis</translation></message>
  <message id="card_umbrella"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Guarda-chuva</translation></message>
  <message id="card_vending_machine"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Máquina de bebidas</translation></message>
  <message id="card_vr_goggles"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Óculos VR</translation></message>

  <!-- Pictures of the Kids deck that no deck above has -->
  <message id="card_balloon"><extracomment>Picture, Kids.</extracomment><source></source><translation>Balão</translation></message>
  <message id="card_bee"><extracomment>Picture, Kids.</extracomment><source></source><translation>Abelha</translation></message>
  <message id="card_crab"><extracomment>Picture, Kids.</extracomment><source></source><translation>Caranguejo</translation></message>
  <message id="card_dinosaur"><extracomment>Picture, Kids.</extracomment><source></source><translation>Dinossauro</translation></message>
  <message id="card_duck"><extracomment>Picture, Kids.</extracomment><source></source><translation>Pato</translation></message>
  <message id="card_elephant"><extracomment>Picture, Kids.</extracomment><source></source><translation>Elefante</translation></message>
  <message id="card_fox"><extracomment>Picture, Kids.</extracomment><source></source><translation>Raposa</translation></message>
  <message id="card_frog"><extracomment>Picture, Kids.</extracomment><source></source><translation>Sapo</translation></message>
  <message id="card_giraffe"><extracomment>Picture, Kids.</extracomment><source></source><translation>Girafa</translation></message>
  <message id="card_hedgehog"><extracomment>Picture, Kids.</extracomment><source></source><translation>Ouriço</translation></message>
  <message id="card_ladybird"><extracomment>Picture, Kids.</extracomment><source></source><translation>Joaninha</translation></message>
  <message id="card_lion"><extracomment>Picture, Kids.</extracomment><source></source><translation>Leão</translation></message>
  <message id="card_octopus"><extracomment>Picture, Kids.</extracomment><source></source><translation>Polvo</translation></message>
  <message id="card_owl"><extracomment>Picture, Kids and 70s.</extracomment><source></source><translation>Coruja</translation></message>
  <message id="card_penguin"><extracomment>Picture, Kids.</extracomment><source></source><translation>Pinguim</translation></message>
  <message id="card_rabbit"><extracomment>Picture, Kids.</extracomment><source></source><translation>Coelho</translation></message>
  <message id="card_rocket"><extracomment>Picture, Kids.</extracomment><source></source><translation>Foguete</translation></message>
  <message id="card_sailing_boat"><extracomment>Picture, Kids.</extracomment><source></source><translation>Veleiro</translation></message>
  <message id="card_snail"><extracomment>Picture, Kids.</extracomment><source></source><translation>Caracol</translation></message>
  <message id="card_tractor"><extracomment>Picture, Kids.</extracomment><source></source><translation>Trator</translation></message>
  <message id="card_train"><extracomment>Picture, Kids.</extracomment><source></source><translation>Locomotiva</translation></message>
  <message id="card_turtle"><extracomment>Picture, Kids.</extracomment><source></source><translation>Tartaruga</translation></message>
  <message id="card_whale"><extracomment>Picture, Kids.</extracomment><source></source><translation>Baleia</translation></message>

  <!-- Pictures of the 70s deck that no deck above has -->
  <message id="card_bicycle"><extracomment>Picture, 70s.</extracomment><source></source><translation>Bicicleta</translation></message>
  <message id="card_butterfly"><extracomment>Picture, 70s.</extracomment><source></source><translation>Borboleta</translation></message>
  <message id="card_cactus"><extracomment>Picture, 70s.</extracomment><source></source><translation>Cacto</translation></message>
  <message id="card_camper_van"><extracomment>Picture, 70s.</extracomment><source></source><translation>Motorhome</translation></message>
  <message id="card_daisy"><extracomment>Picture, 70s.</extracomment><source></source><translation>Margarida</translation></message>
  <message id="card_disco_ball"><extracomment>Picture, 70s.</extracomment><source></source><translation>Globo de discoteca</translation></message>
  <message id="card_dove"><extracomment>Picture, 70s.</extracomment><source></source><translation>Pomba</translation></message>
  <message id="card_egg_chair"><extracomment>Picture, 70s.</extracomment><source></source><translation>Poltrona bola</translation></message>
  <message id="card_flared_trousers"><extracomment>Picture, 70s.</extracomment><source></source><translation>Calça boca de sino</translation></message>
  <message id="card_fondue_pot"><extracomment>Picture, 70s.</extracomment><source></source><translation>Fondue</translation></message>
  <message id="card_guitar"><extracomment>Picture, 70s.</extracomment><source></source><translation>Violão</translation></message>
  <message id="card_lava_lamp"><extracomment>Picture, 70s.</extracomment><source></source><translation>Luminária de lava</translation></message>
  <message id="card_mushroom"><extracomment>Picture, 70s.</extracomment><source></source><translation>Cogumelo</translation></message>
  <message id="card_orange_slice"><extracomment>Picture, 70s.</extracomment><source></source><translation>Laranja</translation></message>
  <message id="card_pendant_lamp"><extracomment>Picture, 70s.</extracomment><source></source><translation>Luminária pendente</translation></message>
  <message id="card_platform_shoe"><extracomment>Picture, 70s.</extracomment><source></source><translation>Sapato plataforma</translation></message>
  <message id="card_roller_skate"><extracomment>Picture, 70s.</extracomment><source></source><translation>Patins</translation></message>
  <message id="card_sunglasses"><extracomment>Picture, 70s and 80s.</extracomment><source></source><translation>Óculos de sol</translation></message>
  <message id="card_surfboard"><extracomment>Picture, 70s.</extracomment><source></source><translation>Prancha de surfe</translation></message>
  <message id="card_telephone"><extracomment>Picture, 70s and 80s.</extracomment><source></source><translation>Telefone</translation></message>
  <message id="card_television"><extracomment>Picture, 70s.</extracomment><source></source><translation>Televisão</translation></message>
  <message id="card_typewriter"><extracomment>Picture, 70s.</extracomment><source></source><translation>Máquina de escrever</translation></message>
  <message id="card_vinyl_record"><extracomment>Picture, 70s.</extracomment><source></source><translation>Disco de vinil</translation></message>

  <!-- Pictures of the 80s deck that no deck above has -->
  <message id="card_arcade_machine"><extracomment>Picture, 80s.</extracomment><source></source><translation>Fliperama</translation></message>
  <message id="card_bmx_bike"><extracomment>Picture, 80s.</extracomment><source></source><translation>Bicicleta BMX</translation></message>
  <message id="card_boombox"><extracomment>Picture, 80s.</extracomment><source></source><translation>Rádio portátil</translation></message>
  <message id="card_cassette_tape"><extracomment>Picture, 80s.</extracomment><source></source><translation>Fita cassete</translation></message>
  <message id="card_colour_cube"><extracomment>Picture, 80s.</extracomment><source></source><translation>Cubo mágico</translation></message>
  <message id="card_flamingo"><extracomment>Picture, 80s.</extracomment><source></source><translation>Flamingo</translation></message>
  <message id="card_floppy_disk"><extracomment>Picture, 80s.</extracomment><source></source><translation>Disquete</translation></message>
  <message id="card_gum_machine"><extracomment>Picture, 80s.</extracomment><source></source><translation>Máquina de chicletes</translation></message>
  <message id="card_home_computer"><extracomment>Picture, 80s.</extracomment><source></source><translation>Computador</translation></message>
  <message id="card_ice_pop"><extracomment>Picture, 80s.</extracomment><source></source><translation>Picolé</translation></message>
  <message id="card_instant_camera"><extracomment>Picture, 80s.</extracomment><source></source><translation>Câmera</translation></message>
  <message id="card_joystick"><extracomment>Picture, 80s.</extracomment><source></source><translation>Joystick</translation></message>
  <message id="card_lightning_bolt"><extracomment>Picture, 80s.</extracomment><source></source><translation>Raio</translation></message>
  <message id="card_mobile_phone"><extracomment>Picture, 80s.</extracomment><source></source><translation>Celular</translation></message>
  <message id="card_palm_tree"><extracomment>Picture, 80s.</extracomment><source></source><translation>Palmeira</translation></message>
  <message id="card_popcorn"><extracomment>Picture, 80s.</extracomment><source></source><translation>Pipoca</translation></message>
  <message id="card_skateboard"><extracomment>Picture, 80s.</extracomment><source></source><translation>Skate</translation></message>
  <message id="card_sports_car"><extracomment>Picture, 80s.</extracomment><source></source><translation>Carro esporte</translation></message>
  <message id="card_synthesizer"><extracomment>Picture, 80s.</extracomment><source></source><translation>Sintetizador</translation></message>
  <message id="card_wrist_watch"><extracomment>Picture, 80s.</extracomment><source></source><translation>Relógio</translation></message>

  <!-- The question for access to the photos -->
  <message id="photo_question_title"><extracomment>Heading of the question for access to the player’s photos.</extracomment>
    <source></source><translation>Jogar com suas próprias fotos?</translation></message>
  <message id="photo_question_text"><extracomment>Under the heading: what the photos are for.</extracomment>
    <source></source><translation>Nos baralhos de fotos, o Paircade faz cartas com as imagens da sua pasta de imagens. Ele só olha: nenhuma imagem é alterada e nada sai deste computador.</translation></message>
  <message id="photo_question_all"><extracomment>Button, answer to the question.</extracomment>
    <source></source><translation>Todas as imagens</translation></message>
  <message id="photo_question_all_consequence"><extracomment>Beside the button: what that answer gives.</extracomment>
    <source></source><translation>Sua pasta de imagens e os álbuns dela</translation></message>
  <message id="photo_question_folder"><extracomment>Button, answer to the question; leads to a dialog.</extracomment>
    <source></source><translation>Escolher pasta…</translation></message>
  <message id="photo_question_folder_consequence"><extracomment>Beside the button: what that answer gives.</extracomment>
    <source></source><translation>Só o que estiver nela</translation></message>
  <message id="photo_question_none"><extracomment>Button, answer to the question.</extracomment>
    <source></source><translation>Sem acesso</translation></message>
  <message id="photo_question_none_consequence"><extracomment>Beside the button: what that answer gives.</extracomment>
    <source></source><translation>Só os quatro baralhos do jogo</translation></message>
  <message id="photo_question_foot"><extracomment>Last line of the question.</extracomment>
    <source></source><translation>Você pode mudar de ideia nas preferências.</translation></message>
  <message id="photo_question_choose"><extracomment>Title of the dialog in which a folder is chosen.</extracomment>
    <source></source><translation>Escolher pasta</translation></message>
  <message id="mnemonic_photo_question_all"><extracomment>Letter underlined in photo_question_all.</extracomment><source></source><translation>T</translation></message>
  <message id="mnemonic_photo_question_folder"><extracomment>Letter underlined in photo_question_folder.</extracomment><source></source><translation>E</translation></message>
  <message id="mnemonic_photo_question_none"><extracomment>Letter underlined in photo_question_none.</extracomment><source></source><translation>S</translation></message>

  <!-- The desktop’s menu and the software centre: the build puts these into files of theirs -->
  <message id="desktop_generic_name"><extracomment>In the desktop’s menu: what kind of program this is.</extracomment>
    <source></source><translation>Jogo de pares</translation></message>
  <message id="desktop_comment"><extracomment>In the menu and the software centre: what the program does, without a full stop.</extracomment>
    <source></source><translation>Vire as cartas e encontre os pares, só ou a dois</translation></message>
  <message id="desktop_keywords"><extracomment>Words that find the program in the menu, each with a semicolon after it.</extracomment>
    <source></source><translation>pares;cartas;memória;concentração;crianças;</translation></message>
  <message id="store_description_play"><extracomment>First paragraph in the software centre.</extracomment>
    <source></source><translation>Vire duas cartas de cada vez, lembre onde estão as imagens e encontre os pares: só, contra o relógio, ou a dois, um de cada vez.</translation></message>
  <message id="store_description_more"><extracomment>Second paragraph in the software centre.</extracomment>
    <source></source><translation>Há quatro baralhos de imagens desenhadas, seis tabuleiros de 4 × 3 a 8 × 5 e quantas rodadas você quiser. Suas próprias fotos também podem ser um baralho; elas nunca saem do computador. Os melhores resultados ficam ao lado do tabuleiro. O jogo inteiro pode ser jogado com o mouse, com o teclado ou com um leitor de tela.</translation></message>
</context>
</TS>
