A document whose commands answer as it shows; what is no console and no file is left alone:

  $ cat >good.md <<'END'
  > Prose with `$ false` in it.
  > ```console
  > $ printf '%s\n' one \
  > >   two
  > one
  > two
  > $ mkdir sub; cd sub
  > ```
  > ```text to_write.txt
  > a 'quoted' $line
  > 
  > ```
  > ```cpp
  > int ignored;
  > ```
  > ```console
  > $ cat to_write.txt ../copied
  > a 'quoted' $line
  > 
  > from outside
  > $ seq 100
  > 1
  > ...
  > 100
  > $ ls missing
  > ls: cannot access 'missing': No such file or directory
  > $ echo $?
  > 2
  > $ printf 'no line break'
  > no line break
  > ```
  > END
  $ echo 'from outside' >copied
  $ "$TESTDIR/run" good.md copied
  8 commands and files, 0 not as good.md shows them

What root is told is left alone, too, unless it is to be done, whatever it answers; but it must not
fail:

  $ cat >root.md <<'END'
  > ```sh
  > echo an answer
  > touch installed
  > ```
  > ```console
  > $ ls
  > installed
  > ```
  > ```sh
  > this-is-no-command
  > ```
  > END
  $ "$TESTDIR/run" --as-root root.md
  root.md: line 10: this-is-no-command
  fails with exit status 127, which the document does not show
  *: this-is-no-command: command not found (glob)
  
  4 commands and files, 1 not as root.md shows them
  [1]
  $ "$TESTDIR/run" root.md | tail -n 1
  1 commands and files, 1 not as root.md shows them

Its shell sees neither the terminal nor the directory nor the language of who runs it:

  $ cat >outside.md <<'END'
  > ```console
  > $ cat; ls; [ "$HOME" = "$PWD" ]; echo $LC_ALL
  > C.UTF-8
  > ```
  > END
  $ "$TESTDIR/run" outside.md
  1 commands and files, 0 not as outside.md shows them

One that shows something else, too much, too little or no failure:

  $ cat >bad.md <<'END'
  > ```console
  > $ echo two
  > one
  > $ true
  > nothing
  > $ seq 2
  > $ seq 3
  > ...
  > 4
  > $ (exit 3)
  > $ echo good
  > good
  > ```
  > END
  $ "$TESTDIR/run" bad.md
  bad.md: line 2: echo two
  --- shown
  +++ written
  @@ -1 +1 @@
  -one
  +two
  
  bad.md: line 4: true
  --- shown
  +++ written
  @@ -1 +0,0 @@
  -nothing
  
  bad.md: line 6: seq 2
  --- shown
  +++ written
  @@ -0,0 +1,2 @@
  +1
  +2
  
  bad.md: line 7: seq 3
  --- shown
  +++ written
  @@ -1,2 +1,3 @@
  -...
  -4
  +1
  +2
  +3
  
  bad.md: line 10: (exit 3)
  fails with exit status 3, which the document does not show
  
  6 commands and files, 5 not as bad.md shows them
  [1]

One that ends the shell, that does not end itself, that has nothing to do, or that is no document:

  $ printf '```console\n$ exit 0\n$ echo late\n```\n' >exits.md
  $ "$TESTDIR/run" exits.md
  exits.md: line 2: exit 0
  was not done:
  
  
  2 commands and files, 1 not as exits.md shows them
  [1]
  $ printf '```console\n$ echo early; sleep 60\n```\n' >hangs.md
  $ "$TESTDIR/run" --time-limit 1 hangs.md
  hangs.md: line 2: echo early; sleep 60
  was not done:
  early
  
  not done within 1 s
  
  1 commands and files, 1 not as hangs.md shows them
  [1]
  $ echo prose >prose.md
  $ "$TESTDIR/run" prose.md
  prose.md: nothing to do
  [1]
  $ printf '```console\n$ true\n' >open.md
  $ "$TESTDIR/run" open.md
  line 1: a block without an end
  [1]
  $ printf '```console\noutput\n```\n' >answer.md
  $ "$TESTDIR/run" answer.md
  line 2: output without a command
  [1]

Times and identifiers in metrics lines may differ on demand, and nothing else:

  $ cat >times.md <<'END'
  > ```console
  > $ echo '{"timestamp":2,"spanId":"00000000-0000-0000-0000-000000000001","id":2}'
  > {"timestamp":1,"spanId":"00000000-0000-0000-0000-000000000000","id":2}
  > $ echo '{"timestamp":2,"id":2}'
  > {"timestamp":1,"id":1}
  > ```
  > END
  $ "$TESTDIR/run" --mask times.md
  times.md: line 4: echo '{"timestamp":2,"id":2}'
  --- shown
  +++ written
  @@ -1 +1 @@
  -{"timestamp":0,"id":1}
  +{"timestamp":0,"id":2}
  
  2 commands and files, 1 not as times.md shows them
  [1]
  $ "$TESTDIR/run" times.md | tail -n 1
  2 commands and files, 2 not as times.md shows them

What it names may be elsewhere:

  $ mkdir -p share; echo here >share/file
  $ cat >places.md <<'END'
  > ```console
  > $ cat /usr/share/product/file
  > here
  > ```
  > END
  $ "$TESTDIR/run" --place /usr/share/product "$PWD/share" places.md
  1 commands and files, 0 not as places.md shows them
