# The steps of the tour, in the order of an evening: sourced by tour.sh, which plays full_tour or short_tour.

deal_button='^push button<T>Deal'
shuffle_button='^push button<T>&?Shuffle'
message='^(alert|dialog)<T>Velmora'

enter_table() {
  start_play
  picture start-screen
  click 'Click to START'
  wait_for 20 "$chip_value_box" "the table does not show after a click on Start"
  measure_table
  expect_scale
  expect Player1Stats Stake 1000 "the first run has set up no stake"
  picture frame
}

# The count of cards lies before the frame from the start. A click on the frame covers it, unless it is kept on top; and
# no switch moves it.
count_window() {
  local box='^check box<T>Keep on top' wanted
  for wanted in 1 0; do
    click "$box"
    expect Misc CardsDealtCountOnTop $wanted "\"Keep on top\" of the count of cards cannot be reached"
    click_table $bare_felt
  done
  click "$box"
  sleep 1
  expect Misc CardsDealtCountOnTop 0 "a click on the frame does not cover the count of cards"
  for wanted in False True False; do
    click '<T>Show count of all cards dealt<T>'
    expect "Card Options" "Show Cards Dealt Count" $wanted "the toolbar does not switch the count of cards"
  done
  expect frmCardsDealtCount Left 300 "the count of cards has moved by itself"
  expect frmCardsDealtCount Top 1800 "the count of cards has moved by itself"
}

# A fast machine may be done before anybody looks.
shuffle_shoe() {
  click "$shuffle_button"
  wait_for 5 "SHUFFLE IN PROGRESS|$deal_button" "a click on Shuffle starts no shuffle"
  picture shuffle
  wait_for 20 "$deal_button" "the shuffle does not end"
}

# 5 chips and a Tie by mouse for the first seat, 3 chips by keyboard for the second.
bet_on_both_seats() {
  click_table $seat1_banker_chip5
  click_table $seat1_tie_chip1
  wait_for 5 '\$940<T>Stake and winnings' "the chips did not cost the first seat \$60"
  click_table $seat2_player_box
  typed 3
  keys Tab
  wait_for 5 '\$970<T>Stake and winnings' "the typed bet did not cost the second seat \$30"
  picture bets
}

deal_ten_hands() {
  click '^push button<T>10( |<T>)'
  wait_for 10 '10 hands have just been dealt' "the ten hands do not end in their message"
  picture ten-hands
  keys Return
  wait_gone 5 'hands have just been dealt' "Enter does not close the message"
  expect ShoesHandsPlayed Hands 10 "ten hands were not counted"
  [ "$(setting Player1Stats Turnover)" -ge 50 ] || fail "the first seat's turnover was not booked"
}

# deal_face_up HANDS: HANDS are counted when it has been played.
deal_face_up() {
  click_table $seat1_banker_chip5
  click "$deal_button"
  expect ShoesHandsPlayed Hands "$1" "hand $1 does not come to its end" 20
  picture hand-face-up
  wait_for 10 "$deal_button" "the table does not reopen after the hand"
}

turn_cards_down() {
  click '<T>Cards dealt face up if pressed<T>'
  expect "Card Options" "Card Face Up" False "the toolbar does not turn the cards face down"
}

# Advice is given; the first card is squeezed and the others clicked.
squeeze_hand() {
  click "$deal_button"
  wait_for 20 'To reveal card - press left mouse button and move up' "no card waits for the user"
  sleep 3
  xdotool mousemove $(on_table $first_strip) mousedown 1
  for pulled in 200 400 600 800; do
    xdotool mousemove $(on_table ${first_strip% *} $((${first_strip#* } - pulled))) sleep 0.1
  done
  picture squeeze
  xdotool mousemove $(on_table ${first_strip% *} $((${first_strip#* } - 1600))) sleep 0.2 mouseup 1
  xdotool mousemove $(on_table $bare_felt) sleep 0.2 mousemove $(on_table $second_card) mousemove_relative 5 5
  wait_for 5 'NATURAL<T>' "learn mode gives no advice for the second card"
  picture learn
}

# turn_the_rest HANDS: HANDS are counted when the hand has come to its end.
turn_the_rest() {
  for card in "$second_card" "$third_card" "$fourth_card"; do
    click_table $card
  done
  until=$((SECONDS + 30))
  until [ "$(setting ShoesHandsPlayed Hands)" = "$1" ]; do
    [ "$SECONDS" -lt "$until" ] || fail "the turned cards lead to no end of the hand"
    if sees '<T>Click to reveal card<T>.*enabled'; then
      click '<T>Click to reveal card<T>.*enabled'
    fi
  done
  picture hand-revealed
  wait_for 10 "$deal_button" "the table does not reopen after the squeezed hand"
}

deal_rest_of_shoe() {
  click '<T>Enter Between 1 and 90<T>'
  keys ctrl+a
  typed 90
  keys Tab
  click "$deal_button"
  until=$((SECONDS + 30))
  until sees 'hands have just been dealt'; do
    [ "$SECONDS" -lt "$until" ] || fail "the rest of the shoe is not dealt"
    if line 'not enough money' >/dev/null; then
      keys Return
    fi
  done
  keys Return
  wait_for 5 'END OF SHOE' "the shoe does not end"
  expect ShoesHandsPlayed "Decks 8" 1 "the shoe was not counted"
  picture end-of-shoe
}

open_cards_dealt() {
  click '<T>Show list of all cards dealt<T>'
  expect "Card Options" "Show Cards Dealt" False "the first click does not turn the list off"
  click '<T>Show list of all cards dealt<T>'
  wait_for 5 '^list<T>Cards dealt<T>' "the list of cards dealt does not show"
  picture cards-dealt
}

read_statistics() {
  click '<T>Show Player Statistics<T>'
  wait_for 5 'TURNOVER|Turnover' "the statistics do not show"
  picture statistics
  click '^push button<T>OK<T>'
  wait_gone 5 'Turnover' "OK does not close the statistics"
}

# The entry that is marked in the open menu looks the same whatever font resolution the desktop tells.
open_options() {
  local entry
  keys alt+o
  wait_for 5 'Large Buttons' "the menu does not open by its key"
  picture menu
  entry=$(line '<T>Large Buttons' | awk -F '\t' '{ print $8 "x" $9 "+" $6 "+" $7 }')
  maim --hidecursor -g "$entry" "$pictures/entry.png"
  if [ "$resolution" != 96 ]; then
    cmp "$pictures/entry.png" "$pictures/../entry.png" || fail "the menus follow the desktop's font resolution"
  fi
}

change_toolbar() {
  open_options
  keys l
  expect Options "Large Buttons" False "the menu does not change the toolbar"
  picture small-toolbar
  measure_table
}

read_help() {
  keys alt+h c
  wait_for 10 'Contents' "the help does not open"
  picture help
  keys alt+F4
}

read_about() {
  keys alt+h a
  wait_for 5 'Improve your Betting Strategy' "About does not show"
  picture about
  keys Return
}

leave_program() {
  keys alt+f x
  wait "$program" || fail "the program did not end well"
}

# What was won and lost is still there.
come_back() {
  [ -n "$(setting frmBaccTable Height)" ] || fail "the places of the windows were not stored"
  start_play
  click '<T>Version 1'
  keys s
  wait_for 20 "$chip_value_box" "the key S does not start the second run"
  local total
  total=$(awk -v win="$(setting Player1Stats Win)" 'BEGIN { print int(1000 + win + 0.5) }')
  look
  grep 'Stake and winnings' "$seen" | tr -d ',' | grep -qF "\$$total" || fail "the first seat does not find its $total again"
  picture second-run
  measure_table
}

full_tour() {
  enter_table
  count_window
  shuffle_shoe
  bet_on_both_seats
  deal_ten_hands
  deal_face_up 11
  turn_cards_down
  squeeze_hand
  turn_the_rest 12
  deal_rest_of_shoe
  open_cards_dealt
  read_statistics
  change_toolbar
  read_help
  read_about
  leave_program
  come_back
  leave_program
}

# What shows how the program is drawn on this screen: a state of each window.
short_tour() {
  enter_table
  shuffle_shoe
  bet_on_both_seats
  turn_cards_down
  squeeze_hand
  turn_the_rest 1
  read_statistics
  change_toolbar
  read_help
  leave_program
}
