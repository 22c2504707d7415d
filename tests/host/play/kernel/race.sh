#!/bin/busybox sh
# The first process of the small machine in which kernel_play_test.py compares, round by round, the latency of the
# player with that of a bare loop between a keyboard and a touch screen.
. /machine.sh

race() {
  step "race $1"
  echo "race $1" >>/log/hands
  do_by_hand "race 57 150" "wait 200"
}
for round in 1 2 3 4; do
  /bare 2>>/log/problems 4>&- &
  bare=$!
  $bb sleep 1
  race bare
  $bb kill $bare
  start_play
  $bb sleep 1
  race play
  $bb kill $play
  wait $play
done
step end
tell problems hands eyes
