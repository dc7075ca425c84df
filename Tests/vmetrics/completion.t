What bash completes. Options of readline that a completion changes are shown behind what it replies:

  $ cat >complete.sh <<'EOS'
  > compopt() { changed=" $*"; }
  > . "$TESTDIR"/../../Tools/vmetrics/completion/vmetrics
  > complete_words() {
  >   changed=
  >   COMP_WORDS=(vmetrics "$@") COMP_CWORD=$#
  >   _vmetrics
  >   echo "${COMPREPLY[*]}$changed"
  > }
  > EOS
  $ complete_words() { bash -c '. ./complete.sh; complete_words "$@"' bash "$@"; }
  $ bash -c '. ./complete.sh; complete -p vmetrics'
  complete -o default -F _vmetrics vmetrics

Subcommands and options, whole or from a beginning:

  $ complete_words ''
  catalogue decode encode run trace stats check +o default
  $ complete_words c
  catalogue check +o default
  $ complete_words --
  --help --version
  $ complete_words trace --l
  --last --links
  $ complete_words catalogue l
  lint +o default
  $ complete_words catalogue lint --f
  --format
  $ complete_words unknown --
  --help --version

Values, behind a space or an equals sign; some are separated by commas:

  $ complete_words catalogue --side ''
  client server +o default
  $ complete_words catalogue --format = m
  markdown +o default
  $ complete_words stats --by =
  hour day +o default
  $ complete_words check --ignore glued,not-json,time,u
  glued,not-json,time,unknown-id glued,not-json,time,used-time glued,not-json,time,unlocked-parent +o default
  $ complete_words trace --last ''
   +o default

Names of files and directories, by bash itself:

  $ complete_words trace --failed ''
  
  $ complete_words check --definitions ''
  
  $ complete_words trace -- --l
  
  $ complete_words run --span-directory ''
   -o dirnames +o default
  $ complete_words encode 302645249 ''
   +o default

Commands, where there is one to be run:

  $ complete_words run --step build -- bas | tr ' ' '\n' | grep -x bash | uniq
  bash
  $ complete_words run --step build -- cat ''
  

All that the tool has, and nothing else:

  $ options_of() { vmetrics $1 --help | grep -oE '^  (-h,)?--[a-z-]+' | grep -o -- '--.*'; }
  $ options_with_value_of() {
  >   vmetrics $1 --help | grep -vE '^  --[a-z-]+ Excludes' | grep -oE '^  --[a-z-]+ [A-Za-z]' | grep -oE -- '--[a-z-]+'
  > }
  $ choices_of() { vmetrics $1 $2 '?' 2>&1 </dev/null | sed -n 's/.* is none of \(.*\); see .*/\1/p' | tr -d ,; }
  $ subcommands=$(vmetrics --help | sed '1,/^Subcommands:/d' | grep -oE '^  [a-z]+')
  $ echo $subcommands
  catalogue decode encode run trace stats check
  $ for subcommand in '' $subcommands 'catalogue lint'; do
  >   options_of "$subcommand" | sort >help
  >   complete_words $subcommand -- | tr ' ' '\n' | sort | diff help - && [ -s help ] || echo "differs: $subcommand"
  > done
  $ for subcommand in $subcommands 'catalogue lint'; do
  >   options_with_value_of "$subcommand" >help
  >   for option in $(options_of "$subcommand"); do
  >     bash -c '. ./complete.sh; _vmetrics_values "$@"' bash "$subcommand" $option | sed "s/.*/$option/"
  >   done | diff help - && [ -s help ] || echo "differs: $subcommand"
  > done
  $ for subcommand in $subcommands 'catalogue lint'; do
  >   for option in $(options_with_value_of "$subcommand"); do
  >     told=$(choices_of "$subcommand" $option)
  >     offered=$(complete_words $subcommand $option '' | sed 's/ *[-+]o .*//')
  >     [ "$told" = "$offered" ] || echo "$subcommand $option: $offered, not $told"
  >   done
  > done
  catalogue --type: string int uint64_t int64_t double bool enum json, not 
  check --ignore: not-json glued too-long no-record member extra-member duplicate-key unknown-id args no-args span-form duplicate-span time used-time is-success parent-step unlocked-parent missing-parent, not 

The kinds of findings are those of the help, as a message with all of them would be too long:

  $ vmetrics check --help | sed -n '/^Kinds/,/^$/s/^  \([a-z-]*\) .*/\1/p' >kinds
  $ wc -l <kinds
  18
  $ complete_words check --ignore '' | sed 's/ *[-+]o .*//' | tr ' ' '\n' | diff kinds -

Any type may be asked for; those that are completed are the ones that render:

  $ echo '302645266;float;myMetric;0' >type.def
  $ vmetrics catalogue lint --definitions type.def | grep -o 'none of [^:]*'
  none of string, int, uint64_t, int64_t, double, bool, enum, json
