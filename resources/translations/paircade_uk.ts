<?xml version="1.0" encoding="utf-8"?>
<!--
SPDX-FileCopyrightText: 2026 The Paircade authors
SPDX-License-Identifier: GPL-3.0-or-later
-->
<!DOCTYPE TS>
<TS version="2.1" language="uk">
<context>
  <name></name>

  <!-- Start forms and sidebar -->
  <message id="enter_name"><extracomment>Placeholder of the name field of the one-player form; also the header text before a game.</extracomment>
    <source></source><translation>Введіть своє ім’я</translation></message>
  <message id="enter_player_names"><extracomment>Header text when a versus game lacks a name.</extracomment>
    <source></source><translation>Введіть обидва імені</translation></message>
  <message id="player_one"><extracomment>Placeholder of the first versus field; stands in for the first player's name.</extracomment>
    <source></source><translation>Гравець 1</translation></message>
  <message id="player_two"><extracomment>Placeholder of the second versus field; stands in for the second player's name.</extracomment>
    <source></source><translation>Гравець 2</translation></message>
  <message id="unknown_player"><extracomment>Name stored with a one-player result that has none.</extracomment>
    <source></source><translation>Без імені</translation></message>
  <message id="start_game"><extracomment>Button of the one-player form.</extracomment>
    <source></source><translation>Грати</translation></message>
  <message id="start_versus_game"><extracomment>Button of the two-player form.</extracomment>
    <source></source><translation>Почати двобій</translation></message>
  <message id="end_game"><extracomment>Sidebar button while a game runs.</extracomment>
    <source></source><translation>Завершити гру</translation></message>
  <message id="versus_mode"><extracomment>Sidebar check box that switches to two players; also the heading above the versus highscores.</extracomment>
    <source></source><translation>Двобій</translation></message>
  <message id="reset_highscores"><extracomment>Sidebar button; removes all stored results.</extracomment>
    <source></source><translation>Стерти рекорди</translation></message>
  <message id="open_highscores_html"><extracomment>Sidebar button; opens the highscore page in the web browser.</extracomment>
    <source></source><translation>Рекорди в браузері</translation></message>
  <message id="best_times"><extracomment>Sidebar heading above the fastest results.</extracomment>
    <source></source><translation>Найкращий час</translation></message>
  <message id="fewest_failed_attempts"><extracomment>Sidebar heading above the results with the fewest failed attempts.</extracomment>
    <source></source><translation>Найменше промахів</translation></message>
  <message id="time_label"><extracomment>Sidebar, below the logo. %1: time as minutes and seconds, 01:07.</extracomment>
    <source></source><translation>Час: %1</translation></message>
  <message id="failed_attempts_label"><extracomment>Sidebar, below the time. %1: number of failed attempts, from 0.</extracomment>
    <source></source><translation>Промахи: %1</translation></message>

  <!-- Line above the board -->
  <message id="round_of_rounds"><extracomment>One player. %1: current round, from 1; %2: number of rounds.</extracomment>
    <source></source><translation>Раунд %1 із %2</translation></message>
  <message id="player_turn"><extracomment>Two players, nothing turned yet. %1: name of the player to move.</extracomment>
    <source></source><translation>%1, ваш хід</translation></message>
  <message id="player_choose_second_card"><extracomment>Two players, one card turned. %1: name of the player to move.</extracomment>
    <source></source><translation>%1, виберіть другу картку</translation></message>
  <message id="player_found_pair"><extracomment>Two players. %1: name of the player who found a pair. May be the last pair of the game.</extracomment>
    <source></source><translation>%1: знайдено пару!</translation></message>
  <message id="player_starts_round"><extracomment>Two players, a further round begins. %1: name of the player to move; %2: number of the round, from 2.</extracomment>
    <source></source><translation>%1 починає раунд %2</translation></message>

  <!-- Results, shown large after a game -->
  <message id="singleplayer_result"><extracomment>One player. %1: name; %2: time as minutes and seconds; %3: number of failed attempts, from 0.</extracomment>
    <source></source><translation>Чудово, %1! %2 · Промахи: %3</translation></message>
  <message id="player_wins_score"><extracomment>Two players. %1: winner's name; %2: winner's pairs; %3: loser's pairs, from 0.</extracomment>
    <source></source><translation>%1 перемагає %2:%3!</translation></message>
  <message id="draw_score"><extracomment>Two players. %1 and %2: pairs of the first and of the second player, equal.</extracomment>
    <source></source><translation>Нічия %1:%2</translation></message>

  <!-- Messages -->
  <message id="ok"><extracomment>Button that closes a message.</extracomment>
    <source></source><translation>Гаразд</translation></message>
  <message id="not_enough_images_for_round"><extracomment>Message: a deck of the game has too few pictures. %1: different pictures needed; %2: round that could not be dealt.</extracomment>
    <source></source><translation>У цій колоді замало малюнків. Потрібно: %1 (раунд %2). Виберіть у налаштуваннях іншу колоду або менше поле.</translation></message>
  <message id="iphoto_not_enough_images"><extracomment>Message: too few of the player's photos for a round, or no access to them. %1: photos needed.</extracomment>
    <source></source><translation>Замало фотографій для раунду. Потрібно: %1. Додайте фотографії або виберіть у налаштуваннях іншу колоду чи менше поле.</translation></message>
  <message id="iphoto_not_enough_images_in_album"><extracomment>Message: too few photos in the chosen album, or no access to it. %1: photos needed.</extracomment>
    <source></source><translation>У цьому альбомі замало фотографій для раунду. Потрібно: %1. Додайте фотографії до теки альбому або виберіть у налаштуваннях іншу колоду чи менше поле.</translation></message>
  <message id="iphoto_access_denied"><extracomment>Message, first line: a photo deck is chosen, but access to the photos is not allowed.</extracomment>
    <source></source><translation>Paircade не має доступу до ваших фотографій</translation></message>
  <message id="iphoto_access_denied_info"><extracomment>Message, below iphoto_access_denied. The quoted word is the caption in the preferences.</extracomment>
    <source></source><translation>Щоб грати з власними фотографіями, Paircade має бачити ваші зображення. Змінити це можна в налаштуваннях, у пункті «Фотографії».</translation></message>
  <message id="iphoto_album_not_found"><extracomment>Message, first line: the folder of the chosen album is gone.</extracomment>
    <source></source><translation>Фотоальбом не знайдено</translation></message>
  <message id="iphoto_album_not_found_info"><extracomment>Message, below iphoto_album_not_found.</extracomment>
    <source></source><translation>Можливо, його теку перейменовано, переміщено або вилучено. Відновіть теку або виберіть у налаштуваннях іншу колоду.</translation></message>
  <message id="iphoto_album_incomplete"><extracomment>Message, first line: the folder of the chosen album could not be read to its end.</extracomment>
    <source></source><translation>Не вдалося повністю прочитати фотоальбом.</translation></message>
  <message id="iphoto_album_incomplete_info"><extracomment>Message, below iphoto_album_incomplete.</extracomment>
    <source></source><translation>Можливо, його тека або диск, на якому вона міститься, зараз недоступні. Спробуйте ще раз пізніше або виберіть у налаштуваннях іншу колоду.</translation></message>
  <message id="iphoto_no_images_found"><extracomment>Message, first line: the pictures folder or the chosen album holds no photos.</extracomment>
    <source></source><translation>Фотографій не знайдено</translation></message>
  <message id="iphoto_no_images_found_info"><extracomment>Message, below iphoto_no_images_found.</extracomment>
    <source></source><translation>У теці, з якої ця колода бере фотографії, їх немає. Додайте до неї фотографії або виберіть у налаштуваннях іншу колоду.</translation></message>
  <message id="highscores_export_error_title"><extracomment>Message, first line: the highscore page could not be written. The system's own reason follows below.</extracomment>
    <source></source><translation>Не вдалося зберегти сторінку рекордів</translation></message>
  <message id="already_running"><extracomment>Shown and printed at a second start when the running game does not answer.</extracomment>
    <source></source><translation>Paircade вже запущено, але він не відповідає. Зачекайте трохи й спробуйте ще раз. Якщо не допоможе, спершу закрийте запущений Paircade.</translation></message>

  <!-- Preferences -->
  <message id="play_rounds_label_singular"><extracomment>Beside the rounds control. %1: number of rounds, always 1.</extracomment>
    <source></source><translation>%1 раунд у грі</translation></message>
  <message id="play_rounds_label_plural" numerus="yes"><extracomment>Beside the rounds control. %1: number of rounds, any but 1.</extracomment>
    <source></source><translation><numerusform>%1 раунд у грі</numerusform><numerusform>%1 раунди у грі</numerusform><numerusform>%1 раундів у грі</numerusform></translation></message>
  <message id="card_layout_1"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>4 × 3, 6 пар</translation></message>
  <message id="card_layout_2"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>4 × 4, 8 пар</translation></message>
  <message id="card_layout_3"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>5 × 4, 10 пар</translation></message>
  <message id="card_layout_4"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>6 × 4, 12 пар</translation></message>
  <message id="card_layout_5"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>7 × 4, 14 пар</translation></message>
  <message id="card_layout_6"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>8 × 5, 20 пар</translation></message>
  <message id="preferences_accessible_name"><extracomment>Name of the preferences window for screen readers; no title shows.</extracomment>
    <source></source><translation>Налаштування</translation></message>
  <message id="preferences_rounds"><extracomment>Caption before the number of rounds.</extracomment>
    <source></source><translation>Раунди:</translation></message>
  <message id="preferences_card_layout"><extracomment>Caption before the number of the card layout.</extracomment>
    <source></source><translation>Поле:</translation></message>
  <message id="preferences_locked"><extracomment>Why the numbers of rounds and of the layout cannot be changed while a game runs.</extracomment>
    <source></source><translation>Можна змінити, коли гру завершено.</translation></message>
  <message id="preferences_found_pairs"><extracomment>Caption before preferences_remove_match.</extracomment>
    <source></source><translation>Знайдені пари:</translation></message>
  <message id="preferences_remove_match"><extracomment>Check box: found pairs leave the board.</extracomment>
    <source></source><translation>Прибирати з поля</translation></message>
  <message id="preferences_deck"><extracomment>Caption before the menu of the decks.</extracomment>
    <source></source><translation>Колода:</translation></message>
  <message id="preferences_preview"><extracomment>For screen readers: the first pictures of the chosen deck. %1: their names, with commas between.</extracomment>
    <source></source><translation>Малюнки колоди: %1</translation></message>
  <message id="preferences_no_preview"><extracomment>For screen readers: backs of cards in place of the pictures, which are the player’s own photos or missing.</extracomment>
    <source></source><translation>Сорочки карток</translation></message>
  <message id="preferences_photos"><extracomment>Caption before what the game may see of the player’s photos; quoted in iphoto_access_denied_info.</extracomment>
    <source></source><translation>Фотографії:</translation></message>
  <message id="preferences_photos_not_asked"><extracomment>After the caption: the player was not yet asked for the photos.</extracomment>
    <source></source><translation>Ще не вирішено</translation></message>
  <message id="preferences_photos_all"><extracomment>After the caption: the game may use all pictures.</extracomment>
    <source></source><translation>Усі зображення</translation></message>
  <message id="preferences_photos_only"><extracomment>After the caption: the game may use the pictures of one folder. %1: the folder’s name.</extracomment>
    <source></source><translation>Лише «%1»</translation></message>
  <message id="preferences_photos_none"><extracomment>After the caption: the game may use no pictures.</extracomment>
    <source></source><translation>Немає доступу</translation></message>
  <message id="preferences_photos_allow"><extracomment>Button: lets the player allow access to the photos for the first time.</extracomment>
    <source></source><translation>Дозволити…</translation></message>
  <message id="preferences_photos_change"><extracomment>Button: lets the player change the access to the photos.</extracomment>
    <source></source><translation>Змінити…</translation></message>
  <message id="preferences_photos_unavailable"><extracomment>Why the button beside the photos cannot be pressed.</extracomment>
    <source></source><translation>Ця версія не може використовувати ваші фотографії.</translation></message>
  <message id="preferences_album"><extracomment>Check box: keeps an album named Paircade.</extracomment>
    <source></source><translation>Вести альбом Paircade</translation></message>
  <message id="preferences_sound"><extracomment>Caption before preferences_play_sounds.</extracomment>
    <source></source><translation>Звук:</translation></message>
  <message id="preferences_play_sounds"><extracomment>Check box.</extracomment>
    <source></source><translation>Відтворювати звуки</translation></message>
  <message id="preferences_volume"><extracomment>Caption before the slider of the volume.</extracomment>
    <source></source><translation>Гучність:</translation></message>
  <message id="volume_percent"><extracomment>Beside the slider of the volume. %1: 0 to 100. Where a space belongs before the sign it does not break.</extracomment>
    <source></source><translation>%1 %</translation></message>
  <message id="preferences_window"><extracomment>Caption before preferences_full_screen.</extracomment>
    <source></source><translation>Вікно:</translation></message>
  <message id="preferences_full_screen"><extracomment>Check box: the game starts in full screen.</extracomment>
    <source></source><translation>Запускати на весь екран</translation></message>

  <!-- Highscore page in the browser -->
  <message id="highscores_html_title"><extracomment>Title and main heading of the page.</extracomment>
    <source></source><translation>Рекорди Paircade</translation></message>
  <message id="highscores_html_subtitle"><extracomment>Below the heading. %1: internal number, left out on purpose; %2: card layout, 1 to 6; %3: rounds per game.</extracomment>
    <source></source><translation>Усі збережені результати. Поточні налаштування: поле %2 із 6, раунди: %3.</translation></message>
  <message id="highscores_html_generated"><extracomment>Below the subtitle. %1: date and time of the page.</extracomment>
    <source></source><translation>Створено: %1</translation></message>
  <message id="highscores_html_player"><extracomment>Column heading: one name, or two with vs between them.</extracomment>
    <source></source><translation>Гравець</translation></message>
  <message id="highscores_html_time"><extracomment>Column heading.</extracomment>
    <source></source><translation>Час</translation></message>
  <message id="highscores_html_failures"><extracomment>Column heading: failed attempts of one player, or pairs of two players, 3 : 5.</extracomment>
    <source></source><translation>Промахи / рахунок</translation></message>
  <message id="highscores_html_cards"><extracomment>Column heading: columns and rows of the board, 4x3.</extracomment>
    <source></source><translation>Картки</translation></message>
  <message id="highscores_html_rounds"><extracomment>Column heading: number of rounds.</extracomment>
    <source></source><translation>Раунди</translation></message>
  <message id="highscores_html_mode"><extracomment>Column heading: one player or two.</extracomment>
    <source></source><translation>Режим</translation></message>
  <message id="highscores_empty"><extracomment>The only row while there is no result.</extracomment>
    <source></source><translation>Результатів ще немає</translation></message>
  <message id="highscores_mode_solo"><extracomment>Mode of a result of one player.</extracomment>
    <source></source><translation>Один гравець</translation></message>
  <message id="highscores_mode_versus"><extracomment>Mode of a result of two players.</extracomment>
    <source></source><translation>1 на 1</translation></message>

  <!-- Menus -->
  <message id="menu_game"><extracomment>Menu bar.</extracomment>
    <source></source><translation>Гра</translation></message>
  <message id="menu_new_game"><extracomment>Game menu; starts a game.</extracomment>
    <source></source><translation>Нова гра</translation></message>
  <message id="menu_end_game"><extracomment>Game menu; ends the running game.</extracomment>
    <source></source><translation>Завершити гру</translation></message>
  <message id="menu_open_highscores_html"><extracomment>Game menu; as open_highscores_html.</extracomment>
    <source></source><translation>Рекорди в браузері</translation></message>
  <message id="menu_restore_highscores"><extracomment>Game menu; brings back what a reset removed.</extracomment>
    <source></source><translation>Відновити рекорди</translation></message>
  <message id="menu_preferences"><extracomment>Game menu; opens the preferences.</extracomment>
    <source></source><translation>Налаштування…</translation></message>
  <message id="menu_quit"><extracomment>Game menu; ends the program.</extracomment>
    <source></source><translation>Вийти</translation></message>
  <message id="menu_view"><extracomment>Menu bar.</extracomment>
    <source></source><translation>Перегляд</translation></message>
  <message id="menu_full_screen"><extracomment>View menu; on or off.</extracomment>
    <source></source><translation>Повний екран</translation></message>
  <message id="menu_help"><extracomment>Menu bar.</extracomment>
    <source></source><translation>Довідка</translation></message>
  <message id="menu_status"><extracomment>Help menu; a screen reader says how the game stands. Nothing is shown.</extracomment>
    <source></source><translation>Оголосити рахунок</translation></message>
  <message id="menu_keyboard"><extracomment>Help menu; shows keyboard_help.</extracomment>
    <source></source><translation>Клавіатура</translation></message>
  <message id="menu_about"><extracomment>Help menu; shows about_text.</extracomment>
    <source></source><translation>Про Paircade</translation></message>
  <message id="keyboard_help"><extracomment>Help text, one line a key.</extracomment>
    <source></source><translation>Tab: перехід між елементами
Стрілки: рух полем
Home, End: перша й остання картка в ряду
Ctrl+Home, Ctrl+End: перша й остання картка на полі
Пробіл, Enter: перевернути картку
Alt і підкреслена літера: цей елемент або меню
F1: програма читання з екрана оголосить час і рахунок
Ctrl+N: нова гра
F11: повний екран
Ctrl+кома: налаштування
Ctrl+Q: вийти</translation></message>
  <message id="about_text"><extracomment>About the program. %1: version number.</extracomment>
    <source></source><translation>Paircade %1

Гра для одного або двох: перевертайте картки та знаходьте пари.

Програма: GPL-3.0-or-later
Малюнки та звуки: CC-BY-SA-4.0</translation></message>

  <!-- Keyboard letters: one letter that occurs in the text, written as it is there; unique among the texts seen together -->
  <message id="mnemonic_menu_game"><extracomment>Letter underlined in menu_game.</extracomment><source></source><translation>Г</translation></message>
  <message id="mnemonic_menu_view"><extracomment>Letter underlined in menu_view.</extracomment><source></source><translation>П</translation></message>
  <message id="mnemonic_menu_help"><extracomment>Letter underlined in menu_help.</extracomment><source></source><translation>о</translation></message>
  <message id="mnemonic_reset_highscores"><extracomment>Letter underlined in reset_highscores.</extracomment><source></source><translation>С</translation></message>
  <message id="mnemonic_open_highscores_html"><extracomment>Letter underlined in open_highscores_html.</extracomment><source></source><translation>Р</translation></message>
  <message id="mnemonic_versus_mode"><extracomment>Letter underlined in versus_mode.</extracomment><source></source><translation>Д</translation></message>
  <message id="mnemonic_start_game"><extracomment>Letter underlined in start_game.</extracomment><source></source><translation>а</translation></message>
  <message id="mnemonic_start_versus_game"><extracomment>Letter underlined in start_versus_game.</extracomment><source></source><translation>ч</translation></message>
  <message id="mnemonic_end_game"><extracomment>Letter underlined in end_game.</extracomment><source></source><translation>З</translation></message>
  <message id="mnemonic_menu_new_game"><extracomment>Letter underlined in menu_new_game.</extracomment><source></source><translation>Н</translation></message>
  <message id="mnemonic_menu_end_game"><extracomment>Letter underlined in menu_end_game.</extracomment><source></source><translation>З</translation></message>
  <message id="mnemonic_menu_open_highscores_html"><extracomment>Letter underlined in menu_open_highscores_html.</extracomment><source></source><translation>Р</translation></message>
  <message id="mnemonic_menu_restore_highscores"><extracomment>Letter underlined in menu_restore_highscores.</extracomment><source></source><translation>В</translation></message>
  <message id="mnemonic_menu_preferences"><extracomment>Letter underlined in menu_preferences.</extracomment><source></source><translation>л</translation></message>
  <message id="mnemonic_menu_quit"><extracomment>Letter underlined in menu_quit.</extracomment><source></source><translation>и</translation></message>
  <message id="mnemonic_menu_full_screen"><extracomment>Letter underlined in menu_full_screen.</extracomment><source></source><translation>П</translation></message>
  <message id="mnemonic_menu_status"><extracomment>Letter underlined in menu_status.</extracomment><source></source><translation>О</translation></message>
  <message id="mnemonic_menu_keyboard"><extracomment>Letter underlined in menu_keyboard.</extracomment><source></source><translation>К</translation></message>
  <message id="mnemonic_menu_about"><extracomment>Letter underlined in menu_about.</extracomment><source></source><translation>П</translation></message>
  <message id="mnemonic_preferences_rounds"><extracomment>Letter underlined in preferences_rounds.</extracomment><source></source><translation>Р</translation></message>
  <message id="mnemonic_preferences_card_layout"><extracomment>Letter underlined in preferences_card_layout.</extracomment><source></source><translation>П</translation></message>
  <message id="mnemonic_preferences_remove_match"><extracomment>Letter underlined in preferences_remove_match.</extracomment><source></source><translation>б</translation></message>
  <message id="mnemonic_preferences_deck"><extracomment>Letter underlined in preferences_deck.</extracomment><source></source><translation>К</translation></message>
  <message id="mnemonic_preferences_photos_allow"><extracomment>Letter underlined in preferences_photos_allow.</extracomment><source></source><translation>Д</translation></message>
  <message id="mnemonic_preferences_photos_change"><extracomment>Letter underlined in preferences_photos_change.</extracomment><source></source><translation>м</translation></message>
  <message id="mnemonic_preferences_album"><extracomment>Letter underlined in preferences_album.</extracomment><source></source><translation>е</translation></message>
  <message id="mnemonic_preferences_play_sounds"><extracomment>Letter underlined in preferences_play_sounds.</extracomment><source></source><translation>В</translation></message>
  <message id="mnemonic_preferences_volume"><extracomment>Letter underlined in preferences_volume.</extracomment><source></source><translation>Г</translation></message>
  <message id="mnemonic_preferences_full_screen"><extracomment>Letter underlined in preferences_full_screen.</extracomment><source></source><translation>З</translation></message>

  <!-- Screen readers -->
  <message id="window_accessible_name"><extracomment>Name of the main window.</extracomment>
    <source></source><translation>Paircade</translation></message>
  <message id="board_accessible_name"><extracomment>Name of the board.</extracomment>
    <source></source><translation>Картки</translation></message>
  <message id="title_accessible_name"><extracomment>Name of the line above the board, which tells whose turn it is, the round or the result.</extracomment>
    <source></source><translation>Стан гри</translation></message>
  <message id="tile_hidden"><extracomment>A card whose back shows. %1: row; %2: column, both from 1.</extracomment>
    <source></source><translation>Ряд %1, стовпець %2, закрита</translation></message>
  <message id="tile_turned"><extracomment>A turned card. %1: row; %2: column; %3: name of the picture.</extracomment>
    <source></source><translation>Ряд %1, стовпець %2, %3</translation></message>
  <message id="tile_found"><extracomment>A card whose pair was found. %1: row; %2: column; %3: name of the picture.</extracomment>
    <source></source><translation>Ряд %1, стовпець %2, %3, пару знайдено</translation></message>
  <message id="tile_removed"><extracomment>A place whose card was found and taken off. %1: row; %2: column.</extracomment>
    <source></source><translation>Ряд %1, стовпець %2, порожньо</translation></message>
  <message id="picture_without_name"><extracomment>Name of a picture that has none, such as a photo. %1: number of the picture, from 1.</extracomment>
    <source></source><translation>малюнок %1</translation></message>

  <!-- Said by screen readers; a full stop is put after a text that ends in no mark of its own -->
  <message id="said_dealt"><extracomment>A new board lies there. %1: rows, at least 3; %2: columns, at least 4.</extracomment>
    <source></source><translation>Картки роздано. Рядів: %1, стовпців: %2</translation></message>
  <message id="said_pair"><extracomment>The second card turned makes a pair. %1: name of the picture.</extracomment>
    <source></source><translation>Пара: %1</translation></message>
  <message id="said_no_pair"><extracomment>The second card turned makes no pair; its name was said just before.</extracomment>
    <source></source><translation>Не пара</translation></message>
  <message id="said_back"><extracomment>Both cards that made no pair are turned back.</extracomment>
    <source></source><translation>Знову закриті</translation></message>
  <message id="status_pairs_left"><extracomment>%1: number of pairs still to find, from 1.</extracomment>
    <source></source><translation>Залишилося пар: %1</translation></message>
  <message id="status_no_game"><extracomment>Said in place of the score.</extracomment>
    <source></source><translation>Зараз гри немає.</translation></message>

  <!-- Pictures of the Cyberpunk deck -->
  <message id="card_can"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Бляшанка</translation></message>
  <message id="card_cat"><extracomment>Picture, Cyberpunk and Kids.</extracomment><source></source><translation>Кіт</translation></message>
  <message id="card_drone"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Дрон</translation></message>
  <message id="card_eye"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Око</translation></message>
  <message id="card_globe"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Глобус</translation></message>
  <message id="card_headphones"><extracomment>Picture, Cyberpunk and 80s.</extracomment><source></source><translation>Навушники</translation></message>
  <message id="card_heart"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Серце</translation></message>
  <message id="card_hover_car"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Літаюче авто</translation></message>
  <message id="card_jellyfish"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Медуза</translation></message>
  <message id="card_microchip"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Мікрочип</translation></message>
  <message id="card_motorcycle"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Мотоцикл</translation></message>
  <message id="card_noodle_bowl"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Миска локшини</translation></message>
  <message id="card_padlock"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Навісний замок</translation></message>
  <message id="card_palm"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Пальма</translation></message>
  <message id="card_rain_boots"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Гумові чоботи</translation></message>
  <message id="card_robot"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Робот</translation></message>
  <message id="card_robot_dog"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Робот-пес</translation></message>
  <message id="card_robot_hand"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Рука робота</translation></message>
  <message id="card_satellite_dish"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Супутникова антена</translation></message>
  <message id="card_skyscraper"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Хмарочос</translation></message>
  <message id="card_sneaker"><extracomment>Picture, Cyberpunk and 80s.</extracomment><source></source><translation>Кросівок</translation></message>
  <message id="card_umbrella"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Парасолька</translation></message>
  <message id="card_vending_machine"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>Торговий автомат</translation></message>
  <message id="card_vr_goggles"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>VR-окуляри</translation></message>

  <!-- Pictures of the Kids deck that no deck above has -->
  <message id="card_balloon"><extracomment>Picture, Kids.</extracomment><source></source><translation>Повітряна куля</translation></message>
  <message id="card_bee"><extracomment>Picture, Kids.</extracomment><source></source><translation>Бджола</translation></message>
  <message id="card_crab"><extracomment>Picture, Kids.</extracomment><source></source><translation>Краб</translation></message>
  <message id="card_dinosaur"><extracomment>Picture, Kids.</extracomment><source></source><translation>Динозавр</translation></message>
  <message id="card_duck"><extracomment>Picture, Kids.</extracomment><source></source><translation>Качка</translation></message>
  <message id="card_elephant"><extracomment>Picture, Kids.</extracomment><source></source><translation>Слон</translation></message>
  <message id="card_fox"><extracomment>Picture, Kids.</extracomment><source></source><translation>Лисиця</translation></message>
  <message id="card_frog"><extracomment>Picture, Kids.</extracomment><source></source><translation>Жаба</translation></message>
  <message id="card_giraffe"><extracomment>Picture, Kids.</extracomment><source></source><translation>Жираф</translation></message>
  <message id="card_hedgehog"><extracomment>Picture, Kids.</extracomment><source></source><translation>Їжак</translation></message>
  <message id="card_ladybird"><extracomment>Picture, Kids.</extracomment><source></source><translation>Сонечко</translation></message>
  <message id="card_lion"><extracomment>Picture, Kids.</extracomment><source></source><translation>Лев</translation></message>
  <message id="card_octopus"><extracomment>Picture, Kids.</extracomment><source></source><translation>Восьминіг</translation></message>
  <message id="card_owl"><extracomment>Picture, Kids and 70s.</extracomment><source></source><translation>Сова</translation></message>
  <message id="card_penguin"><extracomment>Picture, Kids.</extracomment><source></source><translation>Пінгвін</translation></message>
  <message id="card_rabbit"><extracomment>Picture, Kids.</extracomment><source></source><translation>Кролик</translation></message>
  <message id="card_rocket"><extracomment>Picture, Kids.</extracomment><source></source><translation>Ракета</translation></message>
  <message id="card_sailing_boat"><extracomment>Picture, Kids.</extracomment><source></source><translation>Вітрильник</translation></message>
  <message id="card_snail"><extracomment>Picture, Kids.</extracomment><source></source><translation>Равлик</translation></message>
  <message id="card_tractor"><extracomment>Picture, Kids.</extracomment><source></source><translation>Трактор</translation></message>
  <message id="card_train"><extracomment>Picture, Kids.</extracomment><source></source><translation>Паровоз</translation></message>
  <message id="card_turtle"><extracomment>Picture, Kids.</extracomment><source></source><translation>Черепаха</translation></message>
  <message id="card_whale"><extracomment>Picture, Kids.</extracomment><source></source><translation>Кит</translation></message>

  <!-- Pictures of the 70s deck that no deck above has -->
  <message id="card_bicycle"><extracomment>Picture, 70s.</extracomment><source></source><translation>Велосипед</translation></message>
  <message id="card_butterfly"><extracomment>Picture, 70s.</extracomment><source></source><translation>Метелик</translation></message>
  <message id="card_cactus"><extracomment>Picture, 70s.</extracomment><source></source><translation>Кактус</translation></message>
  <message id="card_camper_van"><extracomment>Picture, 70s.</extracomment><source></source><translation>Кемпер</translation></message>
  <message id="card_daisy"><extracomment>Picture, 70s.</extracomment><source></source><translation>Ромашка</translation></message>
  <message id="card_disco_ball"><extracomment>Picture, 70s.</extracomment><source></source><translation>Дискокуля</translation></message>
  <message id="card_dove"><extracomment>Picture, 70s.</extracomment><source></source><translation>Голуб</translation></message>
  <message id="card_egg_chair"><extracomment>Picture, 70s.</extracomment><source></source><translation>Крісло-куля</translation></message>
  <message id="card_flared_trousers"><extracomment>Picture, 70s.</extracomment><source></source><translation>Штани кльош</translation></message>
  <message id="card_fondue_pot"><extracomment>Picture, 70s.</extracomment><source></source><translation>Фондю</translation></message>
  <message id="card_guitar"><extracomment>Picture, 70s.</extracomment><source></source><translation>Гітара</translation></message>
  <message id="card_lava_lamp"><extracomment>Picture, 70s.</extracomment><source></source><translation>Лавова лампа</translation></message>
  <message id="card_mushroom"><extracomment>Picture, 70s.</extracomment><source></source><translation>Гриб</translation></message>
  <message id="card_orange_slice"><extracomment>Picture, 70s.</extracomment><source></source><translation>Апельсин</translation></message>
  <message id="card_pendant_lamp"><extracomment>Picture, 70s.</extracomment><source></source><translation>Підвісна лампа</translation></message>
  <message id="card_platform_shoe"><extracomment>Picture, 70s.</extracomment><source></source><translation>Туфля на платформі</translation></message>
  <message id="card_roller_skate"><extracomment>Picture, 70s.</extracomment><source></source><translation>Роликовий ковзан</translation></message>
  <message id="card_sunglasses"><extracomment>Picture, 70s and 80s.</extracomment><source></source><translation>Сонцезахисні окуляри</translation></message>
  <message id="card_surfboard"><extracomment>Picture, 70s.</extracomment><source></source><translation>Дошка для серфінгу</translation></message>
  <message id="card_telephone"><extracomment>Picture, 70s and 80s.</extracomment><source></source><translation>Телефон</translation></message>
  <message id="card_television"><extracomment>Picture, 70s.</extracomment><source></source><translation>Телевізор</translation></message>
  <message id="card_typewriter"><extracomment>Picture, 70s.</extracomment><source></source><translation>Друкарська машинка</translation></message>
  <message id="card_vinyl_record"><extracomment>Picture, 70s.</extracomment><source></source><translation>Платівка</translation></message>

  <!-- Pictures of the 80s deck that no deck above has -->
  <message id="card_arcade_machine"><extracomment>Picture, 80s.</extracomment><source></source><translation>Ігровий автомат</translation></message>
  <message id="card_bmx_bike"><extracomment>Picture, 80s.</extracomment><source></source><translation>Велосипед BMX</translation></message>
  <message id="card_boombox"><extracomment>Picture, 80s.</extracomment><source></source><translation>Магнітола</translation></message>
  <message id="card_cassette_tape"><extracomment>Picture, 80s.</extracomment><source></source><translation>Касета</translation></message>
  <message id="card_colour_cube"><extracomment>Picture, 80s.</extracomment><source></source><translation>Кубик-головоломка</translation></message>
  <message id="card_flamingo"><extracomment>Picture, 80s.</extracomment><source></source><translation>Фламінго</translation></message>
  <message id="card_floppy_disk"><extracomment>Picture, 80s.</extracomment><source></source><translation>Дискета</translation></message>
  <message id="card_gum_machine"><extracomment>Picture, 80s.</extracomment><source></source><translation>Автомат із жуйками</translation></message>
  <message id="card_home_computer"><extracomment>Picture, 80s.</extracomment><source></source><translation>Комп’ютер</translation></message>
  <message id="card_ice_pop"><extracomment>Picture, 80s.</extracomment><source></source><translation>Фруктовий лід</translation></message>
  <message id="card_instant_camera"><extracomment>Picture, 80s.</extracomment><source></source><translation>Фотоапарат</translation></message>
  <message id="card_joystick"><extracomment>Picture, 80s.</extracomment><source></source><translation>Джойстик</translation></message>
  <message id="card_lightning_bolt"><extracomment>Picture, 80s.</extracomment><source></source><translation>Блискавка</translation></message>
  <message id="card_mobile_phone"><extracomment>Picture, 80s.</extracomment><source></source><translation>Мобільний телефон</translation></message>
  <message id="card_palm_tree"><extracomment>Picture, 80s.</extracomment><source></source><translation>Пальма</translation></message>
  <message id="card_popcorn"><extracomment>Picture, 80s.</extracomment><source></source><translation>Попкорн</translation></message>
  <message id="card_skateboard"><extracomment>Picture, 80s.</extracomment><source></source><translation>Скейтборд</translation></message>
  <message id="card_sports_car"><extracomment>Picture, 80s.</extracomment><source></source><translation>Спортивне авто</translation></message>
  <message id="card_synthesizer"><extracomment>Picture, 80s.</extracomment><source></source><translation>Синтезатор</translation></message>
  <message id="card_wrist_watch"><extracomment>Picture, 80s.</extracomment><source></source><translation>Годинник</translation></message>

  <!-- The question for access to the photos -->
  <message id="photo_question_title"><extracomment>Heading of the question for access to the player’s photos.</extracomment>
    <source></source><translation>Грати з власними фотографіями?</translation></message>
  <message id="photo_question_text"><extracomment>Under the heading: what the photos are for.</extracomment>
    <source></source><translation>Для колод із фотографій Paircade робить картки із зображень у вашій теці зображень. Він лише дивиться на них: жодне зображення не зміниться, і ніщо не залишить цей комп’ютер.</translation></message>
  <message id="photo_question_all"><extracomment>Button, answer to the question.</extracomment>
    <source></source><translation>Усі зображення</translation></message>
  <message id="photo_question_all_consequence"><extracomment>Beside the button: what that answer gives.</extracomment>
    <source></source><translation>Тека зображень з усіма альбомами</translation></message>
  <message id="photo_question_folder"><extracomment>Button, answer to the question; leads to a dialog.</extracomment>
    <source></source><translation>Вибрати теку…</translation></message>
  <message id="photo_question_folder_consequence"><extracomment>Beside the button: what that answer gives.</extracomment>
    <source></source><translation>Лише те, що в ній</translation></message>
  <message id="photo_question_none"><extracomment>Button, answer to the question.</extracomment>
    <source></source><translation>Без доступу</translation></message>
  <message id="photo_question_none_consequence"><extracomment>Beside the button: what that answer gives.</extracomment>
    <source></source><translation>Лише чотири колоди гри</translation></message>
  <message id="photo_question_foot"><extracomment>Last line of the question.</extracomment>
    <source></source><translation>Це можна змінити в налаштуваннях.</translation></message>
  <message id="photo_question_choose"><extracomment>Title of the dialog in which a folder is chosen.</extracomment>
    <source></source><translation>Вибрати теку</translation></message>
  <message id="mnemonic_photo_question_all"><extracomment>Letter underlined in photo_question_all.</extracomment><source></source><translation>У</translation></message>
  <message id="mnemonic_photo_question_folder"><extracomment>Letter underlined in photo_question_folder.</extracomment><source></source><translation>В</translation></message>
  <message id="mnemonic_photo_question_none"><extracomment>Letter underlined in photo_question_none.</extracomment><source></source><translation>Б</translation></message>

  <!-- The desktop’s menu and the software centre: the build puts these into files of theirs -->
  <message id="desktop_generic_name"><extracomment>In the desktop’s menu: what kind of program this is.</extracomment>
    <source></source><translation>Гра в пари</translation></message>
  <message id="desktop_comment"><extracomment>In the menu and the software centre: what the program does, without a full stop.</extracomment>
    <source></source><translation>Перевертайте картки та знаходьте пари самостійно чи вдвох</translation></message>
  <message id="desktop_keywords"><extracomment>Words that find the program in the menu, each with a semicolon after it.</extracomment>
    <source></source><translation>пари;картки;пам’ять;увага;діти;</translation></message>
  <message id="store_description_play"><extracomment>First paragraph in the software centre.</extracomment>
    <source></source><translation>Перевертайте по дві картки, запам’ятовуйте, де лежать малюнки, і знаходьте пари: самостійно на час або вдвох по черзі.</translation></message>
  <message id="store_description_more"><extracomment>Second paragraph in the software centre.</extracomment>
    <source></source><translation>Є чотири колоди з малюнками, шість полів від 4 × 3 до 8 × 5 і стільки раундів, скільки забажаєте. Колодою можуть стати й ваші власні фотографії; вони ніколи не залишають комп’ютер. Найкращі результати видно поруч із полем. У всю гру можна грати мишею, з клавіатури або з програмою читання з екрана.</translation></message>
</context>
</TS>
