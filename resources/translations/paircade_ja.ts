<?xml version="1.0" encoding="utf-8"?>
<!--
SPDX-FileCopyrightText: 2026 The Paircade authors
SPDX-License-Identifier: GPL-3.0-or-later
-->
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
  <name></name>

  <!-- Start forms and sidebar -->
  <message id="enter_name"><extracomment>Placeholder of the name field of the one-player form; also the header text before a game.</extracomment>
    <source></source><translation>名前を入力してください</translation></message>
  <message id="enter_player_names"><extracomment>Header text when a versus game lacks a name.</extracomment>
    <source></source><translation>2人の名前を入力してください</translation></message>
  <message id="player_one"><extracomment>Placeholder of the first versus field; stands in for the first player's name.</extracomment>
    <source></source><translation>プレイヤー1</translation></message>
  <message id="player_two"><extracomment>Placeholder of the second versus field; stands in for the second player's name.</extracomment>
    <source></source><translation>プレイヤー2</translation></message>
  <message id="unknown_player"><extracomment>Name stored with a one-player result that has none.</extracomment>
    <source></source><translation>名前なし</translation></message>
  <message id="start_game"><extracomment>Button of the one-player form.</extracomment>
    <source></source><translation>ゲーム開始</translation></message>
  <message id="start_versus_game"><extracomment>Button of the two-player form.</extracomment>
    <source></source><translation>対戦開始</translation></message>
  <message id="end_game"><extracomment>Sidebar button while a game runs.</extracomment>
    <source></source><translation>ゲームをやめる</translation></message>
  <message id="versus_mode"><extracomment>Sidebar check box that switches to two players; also the heading above the versus highscores.</extracomment>
    <source></source><translation>対戦モード</translation></message>
  <message id="reset_highscores"><extracomment>Sidebar button; removes all stored results.</extracomment>
    <source></source><translation>記録を消す</translation></message>
  <message id="open_highscores_html"><extracomment>Sidebar button; opens the highscore page in the web browser.</extracomment>
    <source></source><translation>ブラウザーで記録を見る</translation></message>
  <message id="best_times"><extracomment>Sidebar heading above the fastest results.</extracomment>
    <source></source><translation>ベストタイム</translation></message>
  <message id="fewest_failed_attempts"><extracomment>Sidebar heading above the results with the fewest failed attempts.</extracomment>
    <source></source><translation>ミスの少ない順</translation></message>
  <message id="time_label"><extracomment>Sidebar, below the logo. %1: time as minutes and seconds, 01:07.</extracomment>
    <source></source><translation>タイム：%1</translation></message>
  <message id="failed_attempts_label"><extracomment>Sidebar, below the time. %1: number of failed attempts, from 0.</extracomment>
    <source></source><translation>ミス：%1</translation></message>

  <!-- Line above the board -->
  <message id="round_of_rounds"><extracomment>One player. %1: current round, from 1; %2: number of rounds.</extracomment>
    <source></source><translation>ラウンド %1/%2</translation></message>
  <message id="player_turn"><extracomment>Two players, nothing turned yet. %1: name of the player to move.</extracomment>
    <source></source><translation>%1さんの番です</translation></message>
  <message id="player_choose_second_card"><extracomment>Two players, one card turned. %1: name of the player to move.</extracomment>
    <source></source><translation>%1さん、2枚目をどうぞ</translation></message>
  <message id="player_found_pair"><extracomment>Two players. %1: name of the player who found a pair. May be the last pair of the game.</extracomment>
    <source></source><translation>%1さん、ペア発見！</translation></message>
  <message id="player_starts_round"><extracomment>Two players, a further round begins. %1: name of the player to move; %2: number of the round, from 2.</extracomment>
    <source></source><translation>%1さんからラウンド%2開始</translation></message>

  <!-- Results, shown large after a game -->
  <message id="singleplayer_result"><extracomment>One player. %1: name; %2: time as minutes and seconds; %3: number of failed attempts, from 0.</extracomment>
    <source></source><translation>%1さん、おみごと！ %2 · ミス：%3</translation></message>
  <message id="player_wins_score"><extracomment>Two players. %1: winner's name; %2: winner's pairs; %3: loser's pairs, from 0.</extracomment>
    <source></source><translation>%1さんの勝ち！ %2対%3</translation></message>
  <message id="draw_score"><extracomment>Two players. %1 and %2: pairs of the first and of the second player, equal.</extracomment>
    <source></source><translation>引き分け %1対%2</translation></message>

  <!-- Messages -->
  <message id="ok"><extracomment>Button that closes a message.</extracomment>
    <source></source><translation>OK</translation></message>
  <message id="not_enough_images_for_round"><extracomment>Message: a deck of the game has too few pictures. %1: different pictures needed; %2: round that could not be dealt.</extracomment>
    <source></source><translation>このデッキは絵が足りません。必要な枚数：%1（ラウンド%2）。設定で別のデッキか小さい配置を選んでください。</translation></message>
  <message id="iphoto_not_enough_images"><extracomment>Message: too few of the player's photos for a round, or no access to them. %1: photos needed.</extracomment>
    <source></source><translation>ラウンドに必要な写真が足りません。必要な枚数：%1。写真を追加するか、設定で別のデッキか小さい配置を選んでください。</translation></message>
  <message id="iphoto_not_enough_images_in_album"><extracomment>Message: too few photos in the chosen album, or no access to it. %1: photos needed.</extracomment>
    <source></source><translation>このアルバムは写真が足りません。必要な枚数：%1。アルバムのフォルダーに写真を追加するか、設定で別のデッキか小さい配置を選んでください。</translation></message>
  <message id="iphoto_access_denied"><extracomment>Message, first line: a photo deck is chosen, but access to the photos is not allowed.</extracomment>
    <source></source><translation>写真の使用が許可されていません</translation></message>
  <message id="iphoto_access_denied_info"><extracomment>Message, below iphoto_access_denied. The quoted word is the caption in the preferences.</extracomment>
    <source></source><translation>自分の写真で遊ぶには、画像へのアクセスが必要です。設定の「写真」で変更できます。</translation></message>
  <message id="iphoto_album_not_found"><extracomment>Message, first line: the folder of the chosen album is gone.</extracomment>
    <source></source><translation>アルバムが見つかりません</translation></message>
  <message id="iphoto_album_not_found_info"><extracomment>Message, below iphoto_album_not_found.</extracomment>
    <source></source><translation>フォルダーの名前が変わったか、移動または削除された可能性があります。フォルダーを元に戻すか、設定で別のデッキを選んでください。</translation></message>
  <message id="iphoto_album_incomplete"><extracomment>Message, first line: the folder of the chosen album could not be read to its end.</extracomment>
    <source></source><translation>アルバムを最後まで読み込めませんでした。</translation></message>
  <message id="iphoto_album_incomplete_info"><extracomment>Message, below iphoto_album_incomplete.</extracomment>
    <source></source><translation>フォルダー、またはフォルダーのあるディスクに、現在アクセスできない可能性があります。しばらくしてからもう一度試すか、設定で別のデッキを選んでください。</translation></message>
  <message id="iphoto_no_images_found"><extracomment>Message, first line: the pictures folder or the chosen album holds no photos.</extracomment>
    <source></source><translation>写真が見つかりません</translation></message>
  <message id="iphoto_no_images_found_info"><extracomment>Message, below iphoto_no_images_found.</extracomment>
    <source></source><translation>このデッキの写真フォルダーには写真がありません。写真を追加するか、設定で別のデッキを選んでください。</translation></message>
  <message id="highscores_export_error_title"><extracomment>Message, first line: the highscore page could not be written. The system's own reason follows below.</extracomment>
    <source></source><translation>記録ページを保存できませんでした</translation></message>
  <message id="already_running"><extracomment>Shown and printed at a second start when the running game does not answer.</extracomment>
    <source></source><translation>Paircadeはすでに起動していますが、応答がありません。しばらく待ってもう一度お試しください。それでも動かないときは、起動中のPaircadeを先に終了してください。</translation></message>

  <!-- Preferences -->
  <message id="play_rounds_label_singular"><extracomment>Beside the rounds control. %1: number of rounds, always 1.</extracomment>
    <source></source><translation>1ゲーム%1ラウンド</translation></message>
  <message id="play_rounds_label_plural" numerus="yes"><extracomment>Beside the rounds control. %1: number of rounds, any but 1.</extracomment>
    <source></source><translation><numerusform>1ゲーム%1ラウンド</numerusform></translation></message>
  <message id="card_layout_1"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>4 × 3、6ペア</translation></message>
  <message id="card_layout_2"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>4 × 4、8ペア</translation></message>
  <message id="card_layout_3"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>5 × 4、10ペア</translation></message>
  <message id="card_layout_4"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>6 × 4、12ペア</translation></message>
  <message id="card_layout_5"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>7 × 4、14ペア</translation></message>
  <message id="card_layout_6"><extracomment>Name of a card layout: columns, rows, number of pairs.</extracomment><source></source><translation>8 × 5、20ペア</translation></message>
  <message id="preferences_accessible_name"><extracomment>Name of the preferences window for screen readers; no title shows.</extracomment>
    <source></source><translation>設定</translation></message>
  <message id="preferences_rounds"><extracomment>Caption before the number of rounds.</extracomment>
    <source></source><translation>ラウンド数：</translation></message>
  <message id="preferences_card_layout"><extracomment>Caption before the number of the card layout.</extracomment>
    <source></source><translation>カードの配置：</translation></message>
  <message id="preferences_locked"><extracomment>Why the numbers of rounds and of the layout cannot be changed while a game runs.</extracomment>
    <source></source><translation>ゲームが終わると変更できます。</translation></message>
  <message id="preferences_found_pairs"><extracomment>Caption before preferences_remove_match.</extracomment>
    <source></source><translation>そろったペア：</translation></message>
  <message id="preferences_remove_match"><extracomment>Check box: found pairs leave the board.</extracomment>
    <source></source><translation>場から取り除く</translation></message>
  <message id="preferences_deck"><extracomment>Caption before the menu of the decks.</extracomment>
    <source></source><translation>デッキ：</translation></message>
  <message id="preferences_preview"><extracomment>For screen readers: the first pictures of the chosen deck. %1: their names, with commas between.</extracomment>
    <source></source><translation>デッキの絵：%1</translation></message>
  <message id="preferences_no_preview"><extracomment>For screen readers: backs of cards in place of the pictures, which are the player’s own photos or missing.</extracomment>
    <source></source><translation>カードの裏面</translation></message>
  <message id="preferences_photos"><extracomment>Caption before what the game may see of the player’s photos; quoted in iphoto_access_denied_info.</extracomment>
    <source></source><translation>写真：</translation></message>
  <message id="preferences_photos_not_asked"><extracomment>After the caption: the player was not yet asked for the photos.</extracomment>
    <source></source><translation>未設定</translation></message>
  <message id="preferences_photos_all"><extracomment>After the caption: the game may use all pictures.</extracomment>
    <source></source><translation>すべての画像</translation></message>
  <message id="preferences_photos_only"><extracomment>After the caption: the game may use the pictures of one folder. %1: the folder’s name.</extracomment>
    <source></source><translation>次のみ：「%1」</translation></message>
  <message id="preferences_photos_none"><extracomment>After the caption: the game may use no pictures.</extracomment>
    <source></source><translation>アクセスなし</translation></message>
  <message id="preferences_photos_allow"><extracomment>Button: lets the player allow access to the photos for the first time.</extracomment>
    <source></source><translation>許可…</translation></message>
  <message id="preferences_photos_change"><extracomment>Button: lets the player change the access to the photos.</extracomment>
    <source></source><translation>変更…</translation></message>
  <message id="preferences_photos_unavailable"><extracomment>Why the button beside the photos cannot be pressed.</extracomment>
    <source></source><translation>このバージョンでは自分の写真を使えません。</translation></message>
  <message id="preferences_album"><extracomment>Check box: keeps an album named Paircade.</extracomment>
    <source></source><translation>Paircadeアルバムを使う</translation></message>
  <message id="preferences_sound"><extracomment>Caption before preferences_play_sounds.</extracomment>
    <source></source><translation>サウンド：</translation></message>
  <message id="preferences_play_sounds"><extracomment>Check box.</extracomment>
    <source></source><translation>音を鳴らす</translation></message>
  <message id="preferences_volume"><extracomment>Caption before the slider of the volume.</extracomment>
    <source></source><translation>音量：</translation></message>
  <message id="volume_percent"><extracomment>Beside the slider of the volume. %1: 0 to 100. Where a space belongs before the sign it does not break.</extracomment>
    <source></source><translation>%1%</translation></message>
  <message id="preferences_window"><extracomment>Caption before preferences_full_screen.</extracomment>
    <source></source><translation>ウィンドウ：</translation></message>
  <message id="preferences_full_screen"><extracomment>Check box: the game starts in full screen.</extracomment>
    <source></source><translation>全画面で起動する</translation></message>

  <!-- Highscore page in the browser -->
  <message id="highscores_html_title"><extracomment>Title and main heading of the page.</extracomment>
    <source></source><translation>Paircadeの記録</translation></message>
  <message id="highscores_html_subtitle"><extracomment>Below the heading. %1: internal number, left out on purpose; %2: card layout, 1 to 6; %3: rounds per game.</extracomment>
    <source></source><translation>保存されたすべての結果です。現在の設定：配置 %2/6、ラウンド数 %3。</translation></message>
  <message id="highscores_html_generated"><extracomment>Below the subtitle. %1: date and time of the page.</extracomment>
    <source></source><translation>作成日時：%1</translation></message>
  <message id="highscores_html_player"><extracomment>Column heading: one name, or two with vs between them.</extracomment>
    <source></source><translation>プレイヤー</translation></message>
  <message id="highscores_html_time"><extracomment>Column heading.</extracomment>
    <source></source><translation>タイム</translation></message>
  <message id="highscores_html_failures"><extracomment>Column heading: failed attempts of one player, or pairs of two players, 3 : 5.</extracomment>
    <source></source><translation>ミス／得点</translation></message>
  <message id="highscores_html_cards"><extracomment>Column heading: columns and rows of the board, 4x3.</extracomment>
    <source></source><translation>カード</translation></message>
  <message id="highscores_html_rounds"><extracomment>Column heading: number of rounds.</extracomment>
    <source></source><translation>ラウンド</translation></message>
  <message id="highscores_html_mode"><extracomment>Column heading: one player or two.</extracomment>
    <source></source><translation>モード</translation></message>
  <message id="highscores_empty"><extracomment>The only row while there is no result.</extracomment>
    <source></source><translation>まだ記録がありません</translation></message>
  <message id="highscores_mode_solo"><extracomment>Mode of a result of one player.</extracomment>
    <source></source><translation>1人</translation></message>
  <message id="highscores_mode_versus"><extracomment>Mode of a result of two players.</extracomment>
    <source></source><translation>1対1</translation></message>

  <!-- Menus -->
  <message id="menu_game"><extracomment>Menu bar.</extracomment>
    <source></source><translation>ゲーム</translation></message>
  <message id="menu_new_game"><extracomment>Game menu; starts a game.</extracomment>
    <source></source><translation>新しいゲーム</translation></message>
  <message id="menu_end_game"><extracomment>Game menu; ends the running game.</extracomment>
    <source></source><translation>ゲームをやめる</translation></message>
  <message id="menu_open_highscores_html"><extracomment>Game menu; as open_highscores_html.</extracomment>
    <source></source><translation>ブラウザーで記録を見る</translation></message>
  <message id="menu_restore_highscores"><extracomment>Game menu; brings back what a reset removed.</extracomment>
    <source></source><translation>記録を元に戻す</translation></message>
  <message id="menu_preferences"><extracomment>Game menu; opens the preferences.</extracomment>
    <source></source><translation>設定…</translation></message>
  <message id="menu_quit"><extracomment>Game menu; ends the program.</extracomment>
    <source></source><translation>終了</translation></message>
  <message id="menu_view"><extracomment>Menu bar.</extracomment>
    <source></source><translation>表示</translation></message>
  <message id="menu_full_screen"><extracomment>View menu; on or off.</extracomment>
    <source></source><translation>全画面表示</translation></message>
  <message id="menu_help"><extracomment>Menu bar.</extracomment>
    <source></source><translation>ヘルプ</translation></message>
  <message id="menu_status"><extracomment>Help menu; a screen reader says how the game stands. Nothing is shown.</extracomment>
    <source></source><translation>状況を読み上げる</translation></message>
  <message id="menu_keyboard"><extracomment>Help menu; shows keyboard_help.</extracomment>
    <source></source><translation>キーボード</translation></message>
  <message id="menu_about"><extracomment>Help menu; shows about_text.</extracomment>
    <source></source><translation>Paircadeについて</translation></message>
  <message id="keyboard_help"><extracomment>Help text, one line a key.</extracomment>
    <source></source><translation>Tab：項目を移動
矢印キー：場の上を移動
Home、End：行の最初と最後のカード
Ctrl+Home、Ctrl+End：場の最初と最後のカード
スペース、Enter：カードをめくる
Altと下線の文字：その項目やメニュー
F1：タイムと得点をスクリーンリーダーで読み上げる
Ctrl+N：新しいゲーム
F11：全画面表示
Ctrl+,（コンマ）：設定
Ctrl+Q：終了</translation></message>
  <message id="about_text"><extracomment>About the program. %1: version number.</extracomment>
    <source></source><translation>Paircade %1

1人でも2人でも。カードをめくってペアをそろえるゲームです。

プログラム：GPL-3.0-or-later
絵と音：CC-BY-SA-4.0</translation></message>

  <!-- Keyboard letters: one letter that occurs in the text, written as it is there; unique among the texts seen together -->
  <message id="mnemonic_menu_game"><extracomment>Letter underlined in menu_game.</extracomment><source></source><translation>G</translation></message>
  <message id="mnemonic_menu_view"><extracomment>Letter underlined in menu_view.</extracomment><source></source><translation>V</translation></message>
  <message id="mnemonic_menu_help"><extracomment>Letter underlined in menu_help.</extracomment><source></source><translation>H</translation></message>
  <message id="mnemonic_reset_highscores"><extracomment>Letter underlined in reset_highscores.</extracomment><source></source><translation>R</translation></message>
  <message id="mnemonic_open_highscores_html"><extracomment>Letter underlined in open_highscores_html.</extracomment><source></source><translation>B</translation></message>
  <message id="mnemonic_versus_mode"><extracomment>Letter underlined in versus_mode.</extracomment><source></source><translation>M</translation></message>
  <message id="mnemonic_start_game"><extracomment>Letter underlined in start_game.</extracomment><source></source><translation>S</translation></message>
  <message id="mnemonic_start_versus_game"><extracomment>Letter underlined in start_versus_game.</extracomment><source></source><translation>S</translation></message>
  <message id="mnemonic_end_game"><extracomment>Letter underlined in end_game.</extracomment><source></source><translation>E</translation></message>
  <message id="mnemonic_menu_new_game"><extracomment>Letter underlined in menu_new_game.</extracomment><source></source><translation>N</translation></message>
  <message id="mnemonic_menu_end_game"><extracomment>Letter underlined in menu_end_game.</extracomment><source></source><translation>E</translation></message>
  <message id="mnemonic_menu_open_highscores_html"><extracomment>Letter underlined in menu_open_highscores_html.</extracomment><source></source><translation>B</translation></message>
  <message id="mnemonic_menu_restore_highscores"><extracomment>Letter underlined in menu_restore_highscores.</extracomment><source></source><translation>R</translation></message>
  <message id="mnemonic_menu_preferences"><extracomment>Letter underlined in menu_preferences.</extracomment><source></source><translation>P</translation></message>
  <message id="mnemonic_menu_quit"><extracomment>Letter underlined in menu_quit.</extracomment><source></source><translation>Q</translation></message>
  <message id="mnemonic_menu_full_screen"><extracomment>Letter underlined in menu_full_screen.</extracomment><source></source><translation>F</translation></message>
  <message id="mnemonic_menu_status"><extracomment>Letter underlined in menu_status.</extracomment><source></source><translation>S</translation></message>
  <message id="mnemonic_menu_keyboard"><extracomment>Letter underlined in menu_keyboard.</extracomment><source></source><translation>K</translation></message>
  <message id="mnemonic_menu_about"><extracomment>Letter underlined in menu_about.</extracomment><source></source><translation>A</translation></message>
  <message id="mnemonic_preferences_rounds"><extracomment>Letter underlined in preferences_rounds.</extracomment><source></source><translation>R</translation></message>
  <message id="mnemonic_preferences_card_layout"><extracomment>Letter underlined in preferences_card_layout.</extracomment><source></source><translation>L</translation></message>
  <message id="mnemonic_preferences_remove_match"><extracomment>Letter underlined in preferences_remove_match.</extracomment><source></source><translation>C</translation></message>
  <message id="mnemonic_preferences_deck"><extracomment>Letter underlined in preferences_deck.</extracomment><source></source><translation>D</translation></message>
  <message id="mnemonic_preferences_photos_allow"><extracomment>Letter underlined in preferences_photos_allow.</extracomment><source></source><translation>A</translation></message>
  <message id="mnemonic_preferences_photos_change"><extracomment>Letter underlined in preferences_photos_change.</extracomment><source></source><translation>H</translation></message>
  <message id="mnemonic_preferences_album"><extracomment>Letter underlined in preferences_album.</extracomment><source></source><translation>K</translation></message>
  <message id="mnemonic_preferences_play_sounds"><extracomment>Letter underlined in preferences_play_sounds.</extracomment><source></source><translation>P</translation></message>
  <message id="mnemonic_preferences_volume"><extracomment>Letter underlined in preferences_volume.</extracomment><source></source><translation>V</translation></message>
  <message id="mnemonic_preferences_full_screen"><extracomment>Letter underlined in preferences_full_screen.</extracomment><source></source><translation>S</translation></message>

  <!-- Screen readers -->
  <message id="window_accessible_name"><extracomment>Name of the main window.</extracomment>
    <source></source><translation>Paircade</translation></message>
  <message id="board_accessible_name"><extracomment>Name of the board.</extracomment>
    <source></source><translation>カード</translation></message>
  <message id="title_accessible_name"><extracomment>Name of the line above the board, which tells whose turn it is, the round or the result.</extracomment>
    <source></source><translation>ゲームの状況</translation></message>
  <message id="tile_hidden"><extracomment>A card whose back shows. %1: row; %2: column, both from 1.</extracomment>
    <source></source><translation>%1行%2列、裏</translation></message>
  <message id="tile_turned"><extracomment>A turned card. %1: row; %2: column; %3: name of the picture.</extracomment>
    <source></source><translation>%1行%2列、%3</translation></message>
  <message id="tile_found"><extracomment>A card whose pair was found. %1: row; %2: column; %3: name of the picture.</extracomment>
    <source></source><translation>%1行%2列、%3、ペア成立</translation></message>
  <message id="tile_removed"><extracomment>A place whose card was found and taken off. %1: row; %2: column.</extracomment>
    <source></source><translation>%1行%2列、空き</translation></message>
  <message id="picture_without_name"><extracomment>Name of a picture that has none, such as a photo. %1: number of the picture, from 1.</extracomment>
    <source></source><translation>画像%1</translation></message>

  <!-- Said by screen readers; a full stop is put after a text that ends in no mark of its own -->
  <message id="said_dealt"><extracomment>A new board lies there. %1: rows, at least 3; %2: columns, at least 4.</extracomment>
    <source></source><translation>カードを配りました。%1行%2列</translation></message>
  <message id="said_pair"><extracomment>The second card turned makes a pair. %1: name of the picture.</extracomment>
    <source></source><translation>ペア：%1</translation></message>
  <message id="said_no_pair"><extracomment>The second card turned makes no pair; its name was said just before.</extracomment>
    <source></source><translation>ペアではありません</translation></message>
  <message id="said_back"><extracomment>Both cards that made no pair are turned back.</extracomment>
    <source></source><translation>裏に戻りました</translation></message>
  <message id="status_pairs_left"><extracomment>%1: number of pairs still to find, from 1.</extracomment>
    <source></source><translation>残りペア：%1</translation></message>
  <message id="status_no_game"><extracomment>Said in place of the score.</extracomment>
    <source></source><translation>ゲーム中ではありません。</translation></message>

  <!-- Pictures of the Cyberpunk deck -->
  <message id="card_can"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>缶ジュース</translation></message>
  <message id="card_cat"><extracomment>Picture, Cyberpunk and Kids.</extracomment><source></source><translation>ネコ</translation></message>
  <message id="card_drone"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>ドローン</translation></message>
  <message id="card_eye"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>目</translation></message>
  <message id="card_globe"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>地球儀</translation></message>
  <message id="card_headphones"><extracomment>Picture, Cyberpunk and 80s.</extracomment><source></source><translation>ヘッドホン</translation></message>
  <message id="card_heart"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>ハート</translation></message>
  <message id="card_hover_car"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>空飛ぶ車</translation></message>
  <message id="card_jellyfish"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>クラゲ</translation></message>
  <message id="card_microchip"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>マイクロチップ</translation></message>
  <message id="card_motorcycle"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>バイク</translation></message>
  <message id="card_noodle_bowl"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>ラーメン</translation></message>
  <message id="card_padlock"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>南京錠</translation></message>
  <message id="card_palm"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>ヤシの木</translation></message>
  <message id="card_rain_boots"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>長靴</translation></message>
  <message id="card_robot"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>ロボット</translation></message>
  <message id="card_robot_dog"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>ロボット犬</translation></message>
  <message id="card_robot_hand"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>ロボットの手</translation></message>
  <message id="card_satellite_dish"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>パラボラアンテナ</translation></message>
  <message id="card_skyscraper"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>高層ビル</translation></message>
  <message id="card_sneaker"><extracomment>Picture, Cyberpunk and 80s.</extracomment><source></source><translation>スニーカー</translation></message>
  <message id="card_umbrella"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>傘</translation></message>
  <message id="card_vending_machine"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>自動販売機</translation></message>
  <message id="card_vr_goggles"><extracomment>Picture, Cyberpunk.</extracomment><source></source><translation>VRゴーグル</translation></message>

  <!-- Pictures of the Kids deck that no deck above has -->
  <message id="card_balloon"><extracomment>Picture, Kids.</extracomment><source></source><translation>気球</translation></message>
  <message id="card_bee"><extracomment>Picture, Kids.</extracomment><source></source><translation>ハチ</translation></message>
  <message id="card_crab"><extracomment>Picture, Kids.</extracomment><source></source><translation>カニ</translation></message>
  <message id="card_dinosaur"><extracomment>Picture, Kids.</extracomment><source></source><translation>恐竜</translation></message>
  <message id="card_duck"><extracomment>Picture, Kids.</extracomment><source></source><translation>アヒル</translation></message>
  <message id="card_elephant"><extracomment>Picture, Kids.</extracomment><source></source><translation>ゾウ</translation></message>
  <message id="card_fox"><extracomment>Picture, Kids.</extracomment><source></source><translation>キツネ</translation></message>
  <message id="card_frog"><extracomment>Picture, Kids.</extracomment><source></source><translation>カエル</translation></message>
  <message id="card_giraffe"><extracomment>Picture, Kids.</extracomment><source></source><translation>キリン</translation></message>
  <message id="card_hedgehog"><extracomment>Picture, Kids.</extracomment><source></source><translation>ハリネズミ</translation></message>
  <message id="card_ladybird"><extracomment>Picture, Kids.</extracomment><source></source><translation>テントウムシ</translation></message>
  <message id="card_lion"><extracomment>Picture, Kids.</extracomment><source></source><translation>ライオン</translation></message>
  <message id="card_octopus"><extracomment>Picture, Kids.</extracomment><source></source><translation>タコ</translation></message>
  <message id="card_owl"><extracomment>Picture, Kids and 70s.</extracomment><source></source><translation>フクロウ</translation></message>
  <message id="card_penguin"><extracomment>Picture, Kids.</extracomment><source></source><translation>ペンギン</translation></message>
  <message id="card_rabbit"><extracomment>Picture, Kids.</extracomment><source></source><translation>ウサギ</translation></message>
  <message id="card_rocket"><extracomment>Picture, Kids.</extracomment><source></source><translation>ロケット</translation></message>
  <message id="card_sailing_boat"><extracomment>Picture, Kids.</extracomment><source></source><translation>ヨット</translation></message>
  <message id="card_snail"><extracomment>Picture, Kids.</extracomment><source></source><translation>カタツムリ</translation></message>
  <message id="card_tractor"><extracomment>Picture, Kids.</extracomment><source></source><translation>トラクター</translation></message>
  <message id="card_train"><extracomment>Picture, Kids.</extracomment><source></source><translation>機関車</translation></message>
  <message id="card_turtle"><extracomment>Picture, Kids.</extracomment><source></source><translation>カメ</translation></message>
  <message id="card_whale"><extracomment>Picture, Kids.</extracomment><source></source><translation>クジラ</translation></message>

  <!-- Pictures of the 70s deck that no deck above has -->
  <message id="card_bicycle"><extracomment>Picture, 70s.</extracomment><source></source><translation>自転車</translation></message>
  <message id="card_butterfly"><extracomment>Picture, 70s.</extracomment><source></source><translation>チョウ</translation></message>
  <message id="card_cactus"><extracomment>Picture, 70s.</extracomment><source></source><translation>サボテン</translation></message>
  <message id="card_camper_van"><extracomment>Picture, 70s.</extracomment><source></source><translation>キャンピングカー</translation></message>
  <message id="card_daisy"><extracomment>Picture, 70s.</extracomment><source></source><translation>デイジー</translation></message>
  <message id="card_disco_ball"><extracomment>Picture, 70s.</extracomment><source></source><translation>ミラーボール</translation></message>
  <message id="card_dove"><extracomment>Picture, 70s.</extracomment><source></source><translation>ハト</translation></message>
  <message id="card_egg_chair"><extracomment>Picture, 70s.</extracomment><source></source><translation>ボールチェア</translation></message>
  <message id="card_flared_trousers"><extracomment>Picture, 70s.</extracomment><source></source><translation>ベルボトム</translation></message>
  <message id="card_fondue_pot"><extracomment>Picture, 70s.</extracomment><source></source><translation>フォンデュ</translation></message>
  <message id="card_guitar"><extracomment>Picture, 70s.</extracomment><source></source><translation>ギター</translation></message>
  <message id="card_lava_lamp"><extracomment>Picture, 70s.</extracomment><source></source><translation>ラバランプ</translation></message>
  <message id="card_mushroom"><extracomment>Picture, 70s.</extracomment><source></source><translation>キノコ</translation></message>
  <message id="card_orange_slice"><extracomment>Picture, 70s.</extracomment><source></source><translation>オレンジ</translation></message>
  <message id="card_pendant_lamp"><extracomment>Picture, 70s.</extracomment><source></source><translation>ペンダントライト</translation></message>
  <message id="card_platform_shoe"><extracomment>Picture, 70s.</extracomment><source></source><translation>厚底靴</translation></message>
  <message id="card_roller_skate"><extracomment>Picture, 70s.</extracomment><source></source><translation>ローラースケート</translation></message>
  <message id="card_sunglasses"><extracomment>Picture, 70s and 80s.</extracomment><source></source><translation>サングラス</translation></message>
  <message id="card_surfboard"><extracomment>Picture, 70s.</extracomment><source></source><translation>サーフボード</translation></message>
  <message id="card_telephone"><extracomment>Picture, 70s and 80s.</extracomment><source></source><translation>電話</translation></message>
  <message id="card_television"><extracomment>Picture, 70s.</extracomment><source></source><translation>テレビ</translation></message>
  <message id="card_typewriter"><extracomment>Picture, 70s.</extracomment><source></source><translation>タイプライター</translation></message>
  <message id="card_vinyl_record"><extracomment>Picture, 70s.</extracomment><source></source><translation>レコード</translation></message>

  <!-- Pictures of the 80s deck that no deck above has -->
  <message id="card_arcade_machine"><extracomment>Picture, 80s.</extracomment><source></source><translation>アーケードゲーム</translation></message>
  <message id="card_bmx_bike"><extracomment>Picture, 80s.</extracomment><source></source><translation>BMX</translation></message>
  <message id="card_boombox"><extracomment>Picture, 80s.</extracomment><source></source><translation>ラジカセ</translation></message>
  <message id="card_cassette_tape"><extracomment>Picture, 80s.</extracomment><source></source><translation>カセットテープ</translation></message>
  <message id="card_colour_cube"><extracomment>Picture, 80s.</extracomment><source></source><translation>キューブパズル</translation></message>
  <message id="card_flamingo"><extracomment>Picture, 80s.</extracomment><source></source><translation>フラミンゴ</translation></message>
  <message id="card_floppy_disk"><extracomment>Picture, 80s.</extracomment><source></source><translation>フロッピーディスク</translation></message>
  <message id="card_gum_machine"><extracomment>Picture, 80s.</extracomment><source></source><translation>ガムボールマシン</translation></message>
  <message id="card_home_computer"><extracomment>Picture, 80s.</extracomment><source></source><translation>パソコン</translation></message>
  <message id="card_ice_pop"><extracomment>Picture, 80s.</extracomment><source></source><translation>アイスキャンディー</translation></message>
  <message id="card_instant_camera"><extracomment>Picture, 80s.</extracomment><source></source><translation>カメラ</translation></message>
  <message id="card_joystick"><extracomment>Picture, 80s.</extracomment><source></source><translation>ジョイスティック</translation></message>
  <message id="card_lightning_bolt"><extracomment>Picture, 80s.</extracomment><source></source><translation>稲妻</translation></message>
  <message id="card_mobile_phone"><extracomment>Picture, 80s.</extracomment><source></source><translation>携帯電話</translation></message>
  <message id="card_palm_tree"><extracomment>Picture, 80s.</extracomment><source></source><translation>ヤシの木</translation></message>
  <message id="card_popcorn"><extracomment>Picture, 80s.</extracomment><source></source><translation>ポップコーン</translation></message>
  <message id="card_skateboard"><extracomment>Picture, 80s.</extracomment><source></source><translation>スケートボード</translation></message>
  <message id="card_sports_car"><extracomment>Picture, 80s.</extracomment><source></source><translation>スポーツカー</translation></message>
  <message id="card_synthesizer"><extracomment>Picture, 80s.</extracomment><source></source><translation>シンセサイザー</translation></message>
  <message id="card_wrist_watch"><extracomment>Picture, 80s.</extracomment><source></source><translation>腕時計</translation></message>

  <!-- The question for access to the photos -->
  <message id="photo_question_title"><extracomment>Heading of the question for access to the player’s photos.</extracomment>
    <source></source><translation>自分の写真で遊びますか？</translation></message>
  <message id="photo_question_text"><extracomment>Under the heading: what the photos are for.</extracomment>
    <source></source><translation>写真デッキでは、画像フォルダーの画像からカードを作ります。画像は見るだけです。変更されることも、このコンピューターの外に出ることもありません。</translation></message>
  <message id="photo_question_all"><extracomment>Button, answer to the question.</extracomment>
    <source></source><translation>すべての画像</translation></message>
  <message id="photo_question_all_consequence"><extracomment>Beside the button: what that answer gives.</extracomment>
    <source></source><translation>画像フォルダーとその中のアルバム</translation></message>
  <message id="photo_question_folder"><extracomment>Button, answer to the question; leads to a dialog.</extracomment>
    <source></source><translation>フォルダーを選ぶ…</translation></message>
  <message id="photo_question_folder_consequence"><extracomment>Beside the button: what that answer gives.</extracomment>
    <source></source><translation>選んだフォルダーの中だけ</translation></message>
  <message id="photo_question_none"><extracomment>Button, answer to the question.</extracomment>
    <source></source><translation>許可しない</translation></message>
  <message id="photo_question_none_consequence"><extracomment>Beside the button: what that answer gives.</extracomment>
    <source></source><translation>ゲーム付属の4つのデッキだけ</translation></message>
  <message id="photo_question_foot"><extracomment>Last line of the question.</extracomment>
    <source></source><translation>あとから設定で変更できます。</translation></message>
  <message id="photo_question_choose"><extracomment>Title of the dialog in which a folder is chosen.</extracomment>
    <source></source><translation>フォルダーを選ぶ</translation></message>
  <message id="mnemonic_photo_question_all"><extracomment>Letter underlined in photo_question_all.</extracomment><source></source><translation>A</translation></message>
  <message id="mnemonic_photo_question_folder"><extracomment>Letter underlined in photo_question_folder.</extracomment><source></source><translation>F</translation></message>
  <message id="mnemonic_photo_question_none"><extracomment>Letter underlined in photo_question_none.</extracomment><source></source><translation>N</translation></message>

  <!-- The desktop’s menu and the software centre: the build puts these into files of theirs -->
  <message id="desktop_generic_name"><extracomment>In the desktop’s menu: what kind of program this is.</extracomment>
    <source></source><translation>神経衰弱ゲーム</translation></message>
  <message id="desktop_comment"><extracomment>In the menu and the software centre: what the program does, without a full stop.</extracomment>
    <source></source><translation>カードをめくってペアをそろえるゲーム</translation></message>
  <message id="desktop_keywords"><extracomment>Words that find the program in the menu, each with a semicolon after it.</extracomment>
    <source></source><translation>ペア;カード;神経衰弱;記憶;こども;</translation></message>
  <message id="store_description_play"><extracomment>First paragraph in the software centre.</extracomment>
    <source></source><translation>カードを2枚ずつめくり、絵の場所を覚えて、ペアをそろえましょう。1人でタイムに挑戦することも、2人で交代で遊ぶこともできます。</translation></message>
  <message id="store_description_more"><extracomment>Second paragraph in the software centre.</extracomment>
    <source></source><translation>絵のデッキは4種類、カードの配置は4 × 3から8 × 5までの6種類、ラウンド数は自由です。自分の写真もデッキになります。写真がコンピューターの外に出ることはありません。最高記録はカードの横に表示されます。マウスだけでも、キーボードだけでも、スクリーンリーダーでも遊べます。</translation></message>
</context>
</TS>
